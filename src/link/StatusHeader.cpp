// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/StatusHeader.h"

#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "core/Text1252.h"
#include "link/ReceivedText.h"

#include <charconv>
#include <string_view>

namespace tally {

namespace {

constexpr std::size_t modeAt = 3;
constexpr std::size_t serialAt = 7;
constexpr std::size_t labelAt = 47;
constexpr std::size_t batteryAt = 53;
constexpr double voltsPerStep = 0.003656;
constexpr double voltsAtZero = 0.15;

// As much of a field as the line has.
std::string_view field(std::string_view line, std::size_t at, std::size_t length) {
    return at < line.size() ? line.substr(at, length) : std::string_view();
}

bool isLetter(char c) {
    return upperCase(c) >= 'A' && upperCase(c) <= 'Z';
}

void readMode(char c, StatusFields& fields) {
    if (!isLetter(c)) {
        fields.mode =
            "FAIL; value is " + (c == '\0' ? "  0  " : toUtf8(std::string(1, c))) + " ;   invalid  ";
        return;
    }
    const char letter = lowerCase(c);
    const ModeRow& row = modeRow(letter);
    fields.state = letter == c ? "Running" : "Stopped";
    fields.mode = isMinMaxAvg(letter) ? "Min/Max/Avg " : "Average";
    if (isMode(letter))
        fields.interval = row.minutes;
    fields.whenFull = row.whenFull;
}

std::optional<double> readBattery(std::string_view line) {
    if (field(line, labelAt, 5) != "Vbatt")
        return {};
    const std::string_view digits = field(line, batteryAt, 3);
    unsigned value = 0;
    const auto end = digits.data() + digits.size();
    if (digits.size() < 3 || std::from_chars(digits.data(), end, value, 16).ptr != end)
        return {};
    return value * voltsPerStep + voltsAtZero;
}

} // namespace

std::optional<StatusFields> readStatusHeader(const std::string& line1, bool lowBattery) {
    if (line1.size() <= modeAt)
        return {};
    StatusFields fields;
    for (const char c : line1.substr(0, 3))
        fields.type += upperCase(c);
    fields.type = toUtf8(fields.type);
    fields.serial = toUtf8(field(line1, serialAt, 4));
    readMode(line1[modeAt], fields);
    if (const auto time = timeOf(line1)) {
        fields.timeOn = screenTime(*time);
        fields.timeOnHeader = headerTime(*time);
    } else {
        fields.timeOn = toUtf8(field(line1, timeColumn(line1), 14));
    }
    fields.vbatt = readBattery(line1);
    fields.lowBattery = lowBattery;
    return fields;
}

std::string batteryText(double volts) {
    return "Vbatt = " + Format(volts, ".000") + " volts";
}

std::string StatusFields::text() const {
    std::string all = " Type: " + type + "    Serial Number " + serial + "\r Mode setting:  " + mode;
    if (interval)
        all += (mode.ends_with(' ') ? "" : " ") + std::to_string(*interval) + " min " + whenFull;
    all += " Time On: " + timeOn;
    if (!timeOnHeader.empty())
        all += " (" + timeOnHeader + ")";
    all += "     Condition: " + state;
    if (vbatt)
        all += "\r" + batteryText(*vbatt);
    if (!autoSelected.empty())
        all += "\rAuto-selected settings now being used are for the " + autoSelected;
    return all;
}

} // namespace tally
