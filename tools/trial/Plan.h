// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tally::trial {

enum class Kind { download, status, init, recover };

// One trial: an instrument with its faults, and what the program is asked to do with it.
struct Plan {
    unsigned seed = 0;
    int number = 0;
    Kind kind = Kind::download;
    int type = 7;           // of the instrument
    bool automatic = false; // the program has to find the type itself
    int count = 0;          // readings
    char mode = 'a';
    bool keepErrors = false; // --yes
    char asks = 'a';         // mode letter of an initialization
    std::vector<std::string> faults;
    std::vector<std::string> conduct; // options of an instrument that differs from the usual one

    bool has(const std::string& fault) const;
    std::vector<std::string> simulatorOptions() const;
    std::vector<std::string> programOptions(const std::string& device, const std::string& output) const;
    // The plan in words: how to see it again by hand.
    std::string text() const;
};

// Draws trial `number` of a run; the same seed draws the same.
Plan drawPlan(unsigned seed, int number, Kind kind);

// What stands on the clock of every instrument; its recording has just stopped.
inline constexpr const char* instrumentClock = "03-15-24 12:00";

const char* nameOf(Kind kind);

} // namespace tally::trial
