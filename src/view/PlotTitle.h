// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <string>

namespace tally {

// The title block below its first line: the file's extremes, mode, date printed, notes of every file and the
// marked span; lines joined by CR LF.
std::string titleBlock(const Recordings& recordings, const DisplayState& state, const Clock& clock);

// The names of the open files, joined by ", ".
std::string openNames(const Recordings& recordings);

// Which of the open files are shorter than the longest; empty when all have the same length.
std::string shorterFiles(const Recordings& recordings);

} // namespace tally
