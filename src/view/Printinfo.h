// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <string>
#include <string_view>

namespace tally {

// The summary of the current file (ginx), UTF-8, lines ended by CR LF. Throws Subscript out of range when no
// file is current.
std::string Printinfo(const Recordings& recordings, const DisplayState& state);

inline constexpr std::string_view noFileForSummary = "Error - No file available. Need to open a file.";
inline constexpr std::string_view noFileForPrintSummary = "Error - No file available.  Need to open a file.";

} // namespace tally
