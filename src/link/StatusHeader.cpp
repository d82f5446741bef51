// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/StatusHeader.h"

#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "core/Text1252.h"
#include <algorithm>
#include <string_view>

namespace tally {

namespace {

const char* const noModeLetter =
    "\r HVN 40 and 80 have no mode letter; they record 15-minute averages in a continuous loop.";

bool isLetter(char c) {
    return upperCase(c) >= 'A' && upperCase(c) <= 'Z';
}

void readMode(char c, StatusFields& fields) {
    if (!isLetter(c)) {
        fields.mode =
            "FAIL; value is " + (c == '\0' ? "  0  " : toUtf8(std::string(1, c))) + " ;   invalid  ";
        fields.blankMode = c == ' ';
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

bool isPrintable(char c) {
    return c >= ' ' && c <= '~';
}

bool isOfCode(char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || c == ' ';
}

} // namespace

// Noise may end where a header begins, and lend it an initial of its own.
bool hasStatusFields(std::string_view line1) {
    return line1.size() >= column::mode.end() && timeOf(line1).has_value() &&
           std::ranges::all_of(headerField(line1, column::model), isOfCode) &&
           std::ranges::all_of(headerField(line1, column::serial), isPrintable);
}

StatusFields readStatusHeader(const std::string& line1, bool lowBattery) {
    StatusFields fields;
    for (const char c : headerField(line1, column::model))
        fields.type += upperCase(c);
    fields.type = toUtf8(fields.type);
    fields.serial = toUtf8(headerField(line1, column::serial));
    readMode(line1[column::mode.at], fields);
    if (const auto time = timeOf(line1)) {
        fields.timeOn = screenTime(*time);
        fields.timeOnHeader = headerTime(*time);
    }
    fields.vbatt = batteryVolts(line1);
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
    all += " Time On: " + timeOn + " (" + timeOnHeader + ")     Condition: " + state;
    if (blankMode)
        all += noModeLetter;
    if (vbatt)
        all += "\r" + batteryText(*vbatt);
    if (!autoSelected.empty())
        all += "\rAuto-selected settings now being used are for the " + autoSelected;
    return all;
}

} // namespace tally
