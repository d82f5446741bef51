// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Export.h"

#include "core/ModeTable.h"
#include "core/PathBeside.h"
#include "export/ScreenTime.h"
#include "view/RunningTime.h"

#include <algorithm>
#include <utility>

namespace tally {

namespace {

constexpr std::size_t dateChars = 18;
constexpr std::size_t timeChars = 14; // of timePattern
constexpr std::string_view timePattern = "%y %m %d %H %M";
constexpr std::string_view screenPattern = "%H:%M  %b %d, %y";
constexpr std::string_view averageHeader = "yy mm dd hh mm Reading\r\n";
constexpr std::string_view minMaxAvgHeader = "yy mm dd hh mm Avg Max Min\r\n";

struct ModeParameters {
    std::size_t perLine;     // values in a table line
    std::size_t perInterval; // values of an interval
    int minutes;             // interval
    std::size_t intervals() const { return perLine / perInterval; }
};

ModeParameters parametersOf(char letter) {
    if (!isMode(letter))
        letter = 'a';
    const int minutes = modeRow(letter).minutes;
    if (isMinMaxAvg(letter))
        return {6, 3, minutes};
    return {minutes == 15 ? 8U : minutes == 5 ? 6U : 10U, 1, minutes};
}

// Takes the next line from a table; line feeds do not count.
std::string_view nextLine(std::string_view& table) {
    const auto end = std::min(table.find('\r'), table.size());
    const auto line = table.substr(0, end);
    table.remove_prefix(std::min(end + 1, table.size()));
    while (!table.empty() && table.front() == '\n')
        table.remove_prefix(1);
    return line;
}

// What an interval has at most besides its values: the time, its line end, a blank for each value.
constexpr std::size_t maximumBesideValues = timeChars + 2 + 3;

// Writes the intervals of a table line, whose values begin at `values`, and gives the end.
char* writeIntervals(char* to, std::string_view values, const ModeParameters& mode, RunningTime& time) {
    const char* from = values.data();
    const char* const end = from + values.size();
    for (std::size_t j = 0; j < mode.intervals(); ++j) {
        bool ended = false;
        for (std::size_t k = 0; k < mode.perInterval; ++k) {
            while (from != end && *from == ' ')
                ++from;
            ended = from == end;
            if (ended)
                break;
            if (k == 0) {
                to = std::copy_n(time.text().data(), timeChars, to);
                time.advance(mode.minutes);
            }
            *to++ = ' ';
            while (from != end && *from != ' ')
                *to++ = *from++;
        }
        *to++ = '\r';
        *to++ = '\n';
        if (ended)
            break;
    }
    return to;
}

} // namespace

PerLineText onePerLineText(std::string_view table, char modeLetter) {
    const ModeParameters mode = parametersOf(modeLetter);
    PerLineText made{std::string(isMinMaxAvg(modeLetter) ? minMaxAvgHeader : averageHeader), false};
    std::string& text = made.text;
    std::size_t used = text.size();
    RunningTime time(timePattern, {});
    // The time of a line that follows on the one before, as it is written there.
    RunningTime expected(screenPattern, {});
    while (!table.empty()) {
        const std::string_view line = nextLine(table);
        made.lineTooShort = line.size() < dateChars;
        if (made.lineTooShort)
            break;
        if (!line.starts_with(expected.text()))
            expected.set(parseScreenTime(line));
        time.set(expected.time());
        const std::size_t maximum = mode.intervals() * maximumBesideValues + line.size();
        if (text.size() - used < maximum)
            text.resize(text.size() + std::max(maximum, 2 * table.size()));
        char* const to = text.data() + used;
        used += static_cast<std::size_t>(writeIntervals(to, line.substr(dateChars), mode, time) - to);
        expected.advance(mode.minutes * static_cast<int>(mode.intervals()));
    }
    text.resize(used);
    return made;
}

Expected<Exported> Export(const Recordings& recordings, int slot, const Table& table, bool onePerLine,
                          Files& files) {
    if (slot < 0 || slot >= Recordings::slotCount || !recordings.isOpen(slot))
        return refuse(std::string(noFileToExport));
    const FileFacts& info = recordings.info(slot);
    const std::string path = pathBeside(info.path, "prn");
    if (const auto free = checkNotOpen(recordings, path, files); !free)
        return tl::make_unexpected(free.error());
    constexpr std::string_view said = " saved OK";
    if (!onePerLine)
        return writeExport(files, path, table.heading + "\r\n" + table.text + "\r\n", said);
    PerLineText made = onePerLineText(table.text, info.modeLetter);
    if (made.lineTooShort) {
        files.write(path, made.text);
        return refuse(std::string(shortLineError));
    }
    return writeExport(files, path, made.text + "\r\n", said);
}

} // namespace tally
