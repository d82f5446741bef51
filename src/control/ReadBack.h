// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tally {

// What an instrument says of itself after an initialization, ready to be shown.
struct ReadBack {
    bool blankMode = false; // an instrument without modes: shown as mode "a"
    std::string report;     // UTF-8
};

// Reads the answer (bytes, from the family initial on; ctrl/Z ends it). A clock that is no time is shown as
// it came. Throws Subscript for a mode letter outside "a" to "m", also for none.
ReadBack readBack(std::string_view answer);

extern const char* const blankModeText;
// What the report ends with when it is shown: the question about another instrument.
extern const char* const anotherQuestion;

} // namespace tally
