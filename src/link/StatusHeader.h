// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace tally {

// The fields of a status header.
struct StatusFields {
    std::string type;   // model code, upper case
    std::string serial; // four characters (UTF-8)
    std::string state;  // "Running", "Stopped", or empty when the mode character is no letter
    std::string mode;   // "Average", "Min/Max/Avg ", or what is wrong with the mode character
    std::optional<int> interval;
    std::string whenFull;        // "Cont", "Stop" or empty
    std::string timeOn;          // "hh:mm  MMM dd, yy"; as it came when it is no time (UTF-8)
    std::string timeOnHeader;    // "mm-dd-yy hh:mm"; empty when it is no time
    std::optional<double> vbatt; // volts
    bool lowBattery = false;
    std::string autoSelected; // with automatic selection: the type whose settings work

    // The text of the result label (UTF-8).
    std::string text() const;
};

// Reads a status header (bytes, from the family initial on). Nothing when it ends before the mode character.
// Throws Subscript for a mode letter after "m".
std::optional<StatusFields> readStatusHeader(const std::string& line1, bool lowBattery);

// "Vbatt = 3.806 volts"
std::string batteryText(double volts);

} // namespace tally
