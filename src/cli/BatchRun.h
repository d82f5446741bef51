// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/BatchWorker.h"

namespace tally::cli {

// A command over many files.
struct BatchRun {
    Call call;
    std::vector<std::string> paths; // as they were given
    std::string folder;             // for what the command writes; empty for none
    std::string ending;             // of what it writes; empty for that of the file
    int workers = 1;
    bool paints = false;
};

namespace status {
constexpr int interrupted = 130;
}

// Works through the files: results on standard output in their order, what is wrong with a file on standard
// error. Gives the exit status. Throws WrongUsage and Refused for what is wrong with all of them.
int runBatch(Context& context, BatchRun& run);

} // namespace tally::cli
