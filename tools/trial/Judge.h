// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Plan.h"

#include <string>

namespace tally::trial {

// What is left of a trial when its programs have ended.
struct Remains {
    std::string folder; // with "out", "cli.err", "sim.err", "record.txt", the journal
    std::string output; // the data file asked for
    std::string device;
    int status = -1;        // of the program
    bool cancelled = false; // the trial had to press Ctrl+C
};

struct Verdict {
    // "right": the right recording, status or setting; "told": kept with words about its errors; "refused":
    // nothing, and words why; "cancelled": by Ctrl+C, for want of an end.
    std::string outcome;
    std::string wrong; // what must not be; empty when all is well
};

Verdict judge(const Plan& plan, const Remains& remains);

} // namespace tally::trial
