// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <string>
#include <string_view>

namespace tally {

// Lays out the readings of the current file (ginx) as the data table in gTable, lines ended by CR LF, and
// gives its heading line. Without an applied span the end of the displayed range becomes the file's last
// reading. Throws Subscript out of range when no file is current.
std::string Print(Recordings& recordings, const DisplayState& state);

inline constexpr std::string_view noFileForTable = "Error - No file available. Need to open a file";

} // namespace tally
