// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Loadshape.h"

#include "core/ModeTable.h"
#include "core/Recordings.h"
#include "export/ReadingTable.h"
#include "view/RunningTime.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tally {

namespace {

bool isShapeSign(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '-';
}

// A name that no other shape of the script has; upper and lower case are alike there.
std::string uniqueName(const std::string& name, std::set<std::string>& taken) {
    std::string unique = name;
    const auto folded = [&unique] {
        std::string lower = unique;
        std::transform(lower.begin(), lower.end(), lower.begin(), lowerCase);
        return lower;
    };
    for (int number = 2; !taken.insert(folded()).second; ++number)
        unique = name + "_" + std::to_string(number);
    return unique;
}

int averageAt(const Recordings& recordings, const TimeAxis& axis, int entry) {
    return recordings.reading(0, axis.reading(0, entry));
}

int highest(const Recordings& recordings, const TimeAxis& axis) {
    int maximum = averageAt(recordings, axis, 0);
    for (int entry = 1; entry < axis.points; ++entry)
        maximum = std::max(maximum, averageAt(recordings, axis, entry));
    return maximum;
}

// The shortest decimal text that reads back as the number.
std::string factorText(double factor) {
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), factor, std::chars_format::fixed).ptr;
    return {text.data(), end};
}

std::string factors(const Recordings& recordings, const TimeAxis& axis) {
    const int maximum = highest(recordings, axis);
    std::string lines;
    for (int entry = 0; entry < axis.points; ++entry)
        lines += factorText(maximum == 0 ? 0.0 : 1.0 * averageAt(recordings, axis, entry) / maximum) + "\n";
    return lines;
}

// The name of a file in a comment, which ends with its line.
std::string inComment(const std::string& path) {
    std::string name = fileNameOf(path);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return name;
}

// A file name as a script takes it: in quotes where a sign would end it.
std::string scriptFile(const std::string& path) {
    const std::string name = fileNameOf(path);
    return name.find_first_of(" \t,=()[]{}|'!") == std::string::npos ? name : "\"" + name + "\"";
}

} // namespace

std::string shapeName(const std::string& path) {
    std::string name = fileNameOf(path);
    name.resize(std::min(name.find_last_of('.'), name.size()));
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !isShapeSign(c); }, '_');
    return name.empty() ? "_" : name;
}

std::string shapeCsv(const std::string& scriptStem, const std::string& name) {
    return scriptStem + "-" + name + ".csv";
}

Expected<Loadshape> loadshape(const Recordings& recordings, const std::string& scriptStem,
                              std::set<std::string>& taken) {
    const auto axis = timeAxis(recordings);
    if (!axis)
        return tl::make_unexpected(axis.error());
    const FileFacts& info = recordings.info(0);
    Loadshape shape;
    shape.name = uniqueName(shapeName(info.path), taken);
    shape.csv = factors(recordings, *axis);
    shape.script = "! " + inComment(info.path) + ": from " + formatTime(axis->start, "%Y-%m-%d %H:%M") +
                   ", 1 stands for " + tenthsText(highest(recordings, *axis)) + " " + info.unit() + "\n" +
                   "New Loadshape." + shape.name + " npts=" + std::to_string(axis->points) +
                   " minterval=" + std::to_string(axis->interval) +
                   " mult=(file=" + scriptFile(shapeCsv(scriptStem, shape.name)) + ")\n";
    return shape;
}

Expected<std::string> playerText(const Recordings& recordings) {
    const auto axis = timeAxis(recordings);
    if (!axis)
        return tl::make_unexpected(axis.error());
    RunningTime time("%Y-%m-%d %H:%M:00,", axis->start);
    std::string lines;
    for (int entry = 0; entry < axis->points; ++entry) {
        lines += time.text() + tenthsText(averageAt(recordings, *axis, entry)) + "\n";
        time.advance(axis->interval);
    }
    return lines;
}

} // namespace tally
