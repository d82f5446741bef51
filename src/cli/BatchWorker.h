// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "cli/batch/Pool.h"

namespace tally::cli {

// A command and its arguments, but for the file that it works on.
struct Call {
    AddCommand add = nullptr;           // the command, or the group that it stands in
    std::vector<std::string> words;     // its name, after the name of the group
    std::vector<std::string> arguments; // its options
    bool json = false;
    bool writes = false;  // takes -o, which is set for each file
    bool ownName = false; // writes under a name of its own, which is set aside for each file
};

// Runs one command on one file after the other. It has a context and an argument parser of its own, so that
// any number of workers can run beside each other.
class BatchWorker {
public:
    // Throws CLI::ParseError when the command does not take the arguments.
    BatchWorker(Context& shared, const Call& call);

    // Works on a file; `to` is where its result goes, where the command writes one.
    JobResult run(const std::string& path, const std::string& to);

private:
    Context context_;
    CLI::App program_;
    CLI::Option* file_ = nullptr;
    CLI::Option* output_ = nullptr;
    bool json_;
    bool ownName_;
};

} // namespace tally::cli
