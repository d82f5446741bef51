// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/Display.h"

#include <string_view>

namespace tally {

// Lays out a range of a file as the data table: its heading and a line for every few readings. Throws
// Subscript out of range when no file is open in the slot.
Table Print(const Recordings& recordings, int slot, const Range& range);

inline constexpr std::string_view noFileForTable = "Error - No file available. Need to open a file";

} // namespace tally
