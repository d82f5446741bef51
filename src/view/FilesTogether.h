// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <string>
#include <vector>

namespace tally {

// The names of the open files, joined by ", ".
std::string openNames(const Recordings& recordings);

// From the oldest to the newest reading of all open files.
struct TimeOfFiles {
    ReadingTime start;
    ReadingTime end;
};
TimeOfFiles timeOfFiles(const Recordings& recordings);

// Which of the open files are shorter than the longest; empty when all have the same length.
std::string shorterFiles(const Recordings& recordings);

// What must be known before files are read side by side, a sentence each: files that start at another time
// than the first one (reading i of one stands beside reading i of the other all the same), and files of
// another unit. Empty for one file.
std::vector<std::string> togetherWarnings(const Recordings& recordings);

// Whether open files start at different times, by their first whole intervals.
bool startsDiffer(const Recordings& recordings);

// The warnings on one line, parted by "; ".
std::string togetherLine(const Recordings& recordings);

// Shorter files and the warnings on one line, parted by "; ".
std::string togetherRemark(const Recordings& recordings);

} // namespace tally
