// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tally::trial {

// What was asked for.
struct Run {
    unsigned seed = 1;
    int trials = 900;
    int only = -1;
    int seconds = 0; // 0: without a limit
    int jobs = 2;
    std::string bin;
};

// Runs the trials, shows what they came to, and each that ended as it must not. Whether all were well.
bool runAll(const Run& run);

} // namespace tally::trial
