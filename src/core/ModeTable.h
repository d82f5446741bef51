// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace tally {

// One row of the mode table: minutes per interval and the word for what happens when the memory is full.
struct ModeRow {
    int minutes;
    std::string_view whenFull; // "Cont" or "Stop"; empty in row 12
};

// The row of a mode letter, "a" to "m" (lower case; "m" is the empty row 12). Throws Subscript out of range.
const ModeRow& modeRow(char letter);

// Whether a letter is one of the twelve modes "a" to "l".
bool isMode(char letter);

// Letters after "f" are Min/Max/Avg recordings: three values per interval, else one.
bool isMinMaxAvg(char letter);
int valuesPerInterval(char letter);

// ASCII letters only, whatever the locale.
char lowerCase(char c);
char upperCase(char c);

} // namespace tally
