// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Plan.h"

#include <string>
#include <vector>

namespace tally::trial {

// What a data text says, read in the plainest way: no library of the program has a part in it.
struct Facts {
    std::string serial;
    std::string time;                  // of the header
    char mode = '\0';                  // lower case
    std::vector<std::string> readings; // as they are written, newest first
    bool operator==(const Facts&) const = default;
};

Facts factsOf(const std::string& text);

// What a trial's instrument would send if nothing were wrong with it and its line, and what its recording is.
std::string soundText(const Plan& plan);
Facts soundFacts(const Plan& plan);

} // namespace tally::trial
