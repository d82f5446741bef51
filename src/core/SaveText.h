// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <string>
#include <string_view>

namespace tally {

// The readings that a save of a range writes: cut to the last reading, of a Min/Max/Avg file widened to whole
// triples. Throws Subscript out of range when no file is in the slot or the range holds no reading.
Range rangeToSave(const Recordings& recordings, int slot, const Range& wanted);

// The data text of a file over a range, newest reading first (bytes); the range is that of rangeToSave.
std::string buildDataText(const Recordings& recordings, int slot, const Range& wanted);

// The same, left in gText; gDateX becomes the last reading.
void buildText(Recordings& recordings, int slot, const Range& wanted);

// A text as one quoted item, the way it is written to a data file.
std::string quoted(std::string_view text);

} // namespace tally
