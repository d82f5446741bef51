// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tally {

// The fields of a status header.
struct StatusFields {
    std::string type;   // model code, upper case
    std::string serial; // four characters (UTF-8)
    std::string state;  // "Running", "Stopped", or empty when the mode character is no letter
    std::string mode;   // "Average", "Min/Max/Avg ", or what is wrong with the mode character
    std::optional<int> interval;
    std::string whenFull;        // "Cont", "Stop" or empty
    std::string timeOn;          // "hh:mm  MMM dd, yy"
    std::string timeOnHeader;    // "mm-dd-yy hh:mm"
    std::optional<double> vbatt; // volts
    bool lowBattery = false;
    bool blankMode = false;   // the mode character is a blank
    std::string autoSelected; // with automatic selection: the type whose settings work

    // The text of the result label (UTF-8).
    std::string text() const;
};

// Whether a header line (bytes, from the family initial on) can be read: it reaches beyond its mode character
// and its time field is a date and time.
bool hasStatusFields(std::string_view line1);

// Reads a status header that can be read. Throws Subscript for a mode letter after "m".
StatusFields readStatusHeader(const std::string& line1, bool lowBattery);

// "Vbatt = 3.806 volts"
std::string batteryText(double volts);

} // namespace tally
