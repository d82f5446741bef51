// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <string>

namespace tally {

// What the options of the initialization say.
struct ModeChoice {
    int minutes = 15; // per interval: 15, 5 or 1
    bool minMaxAvg = false;
    bool stopWhenFull = false;
};

// The mode letter, "a" to "l", of a choice. Throws Subscript for an interval that there is none for.
char modeLetter(const ModeChoice& choice);

// The 18 characters that set an instrument: its clock, the letter reduced to "a" to "f", the Min/Max/Avg
// digit and CR. A blank letter goes to an instrument without modes.
std::string initString(char letter, ReadingTime now);

} // namespace tally
