// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Context.h"
#include "core/Recordings.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>
#include <vector>

namespace tally::cli {

// "--from I --to J": reading indexes, both inclusive.
struct RangeOption {
    std::optional<int> from;
    std::optional<int> to;
    bool given() const { return from || to; }
};

void addRange(CLI::App& command, RangeOption& range);
// The range made gDatastart and gdataend of the current file; without one the whole file. Throws WrongUsage
// when an end is outside the file or they are turned round.
void applyRange(Recordings& recordings, const RangeOption& range);

// "--at "mm-dd-yy hh:mm"": the clock's time.
void addAt(CLI::App& command, Context& context);

// Opens data files into slots 0, 1, 2. Throws Refused with the text of the message box. Items that were no
// numbers and unreadable notes are warned about.
void openFiles(Context& context, Recordings& recordings, const std::vector<std::string>& paths);
void openFile(Context& context, Recordings& recordings, const std::string& path);

} // namespace tally::cli
