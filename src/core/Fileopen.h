// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Recordings.h"

#include <string>
#include <string_view>

namespace tally {

// cannotRead: the file is there, but the system does not give it out; badFile: what stands in it is no
// recording.
enum class OpenOutcome { opened, modeMixing, notVoltage, notFound, cannotRead, badFile, slotsFull };

// The text of the message box; empty for opened.
std::string_view openMessage(OpenOutcome outcome);

// Reads a data file and its notes into the first free slot and makes it current.
// `voltageOnly` refuses current recordings. Refused, nothing has changed. The recent list and the menus are
// the caller's.
OpenOutcome Fileopen(Recordings& recordings, const Files& files, const std::string& path,
                     bool voltageOnly = false);

} // namespace tally
