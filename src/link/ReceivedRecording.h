// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/Runspec.h"
#include "link/SessionEnd.h"

#include <cstddef>
#include <string>

namespace tally {

// An accepted download. It waits here, and nowhere else, until it is saved.
struct PendingDownload {
    std::string text; // bytes, as a data file holds them
    std::string id;   // its reception in the journal; empty when that is kept nowhere
};

// A received text up to its first end mark, and how many characters follow that.
struct EndedText {
    std::string text;
    std::size_t followed = 0;
};
EndedText endedText(std::string received);

// Warns before anything is saved when characters followed the end mark: it may be a stray one.
void warnOfFollowers(std::size_t followed, Prompt& prompt);

// The checks of a download: that there is a recording in the text, and its lines, readings and characters.
// Puts the model code into upper case and plants the faults asked for. The end was told.
SessionResult<void> checkRecording(std::string& text, const RunFlags& flags, Prompt& prompt);

// Asks for what the header of a checked text must have and has not: a mode letter, a time. The end was told.
SessionResult<void> completeHeader(std::string& text, Prompt& prompt);

} // namespace tally
