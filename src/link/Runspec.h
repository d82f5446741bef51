// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Prompt.h"

#include <string>
#include <string_view>

namespace tally {

// What is reported of a download, and the faults that are planted in it for testing.
struct RunFlags {
    bool enableChange999sTo000 = true;
    bool enable999CountReport = false;
    bool enableErrorReport = true;
    bool enableAddedReading = false;   // fault 1
    bool enableMissingReading = false; // fault 2
    bool enableChangeTo999 = false;    // fault 3
    bool enableAddedBadChar = false;   // fault 4
    bool enableReadingOver999 = false; // fault 5
    bool enableAddedCtrlZ = false;     // fault 6
    bool enableMissingCtrlZ = false;   // fault 7

    bool anyFault() const;
    bool operator==(const RunFlags&) const = default;
};

// The flags that a run specification sets, and the text that tells which.
struct Runspec {
    RunFlags flags;
    std::string report;
};

// Reads the lines of a run specification (bytes); lines that are not exactly a known text are ignored.
Runspec readRunspec(std::string_view bytes);

// The defaults, changed by "runspec.txt" of the working directory where it exists, and the message about it.
// Throws the file fault of a file that cannot be read.
RunFlags HandleRunspec(const Files& files, Prompt& prompt, const std::string& workingDirectory);

} // namespace tally
