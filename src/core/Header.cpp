// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Header.h"

#include "core/ModeTable.h"

#include <algorithm>
#include <charconv>

namespace tally {

namespace {

constexpr std::string_view batteryColumnText = "   Vbatt";
constexpr std::string_view batteryLabelText = "Vbatt";
constexpr std::size_t longestWithoutBattery = 51;
constexpr double voltsPerStep = 0.003656;
constexpr double voltsAtZero = 0.15;

} // namespace

bool isFamilyInitial(char c) {
    return familyInitials.find(upperCase(c)) != std::string_view::npos;
}

std::string_view headerField(std::string_view header, HeaderField field) {
    return field.at < header.size() ? header.substr(field.at, field.length) : std::string_view();
}

char modeLetterOf(std::string_view header) {
    const std::string_view mode = headerField(header, column::mode);
    return mode.empty() || mode[0] == ' ' ? 'a' : lowerCase(mode[0]);
}

bool isRunning(std::string_view header) {
    const std::string_view mode = headerField(header, column::mode);
    return !mode.empty() && mode[0] >= 'a' && mode[0] <= 'z';
}

bool isOlderLayout(std::string_view header) {
    return header.size() > longestWithoutBattery && headerField(header, column::battery) != batteryColumnText;
}

HeaderField timeField(std::string_view header) {
    return isOlderLayout(header) ? column::olderTime : column::time;
}

std::optional<ReadingTime> timeOf(std::string_view header) {
    return parseHeaderTime(headerField(header, timeField(header)));
}

std::optional<double> batteryVolts(std::string_view header) {
    if (headerField(header, column::batteryLabel) != batteryLabelText)
        return {};
    const std::string_view digits = headerField(header, column::batteryValue);
    unsigned value = 0;
    const auto end = digits.data() + digits.size();
    if (digits.size() < column::batteryValue.length ||
        std::from_chars(digits.data(), end, value, 16).ptr != end)
        return {};
    return value * voltsPerStep + voltsAtZero;
}

void putTime(std::string& header, HeaderField field, ReadingTime time) {
    header.resize(std::max(header.size(), field.end()), ' ');
    header.replace(field.at, field.length, headerTime(time));
}

bool repairOlderLayout(std::string& header) {
    if (!isOlderLayout(header))
        return true;
    if (header.size() < column::olderTime.end())
        return false;
    header.replace(column::time.at, column::time.length, std::string(headerField(header, column::olderTime)));
    return true;
}

} // namespace tally
