// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <string>
#include <string_view>

namespace tally {

// The data text of the current file (ginx) over gDatastart to gdataend, newest reading first (bytes). A range
// that ends beyond the last reading is cut to it; one of a Min/Max/Avg file is widened to whole triples.
// Throws Subscript out of range when no file is current or the range holds no reading.
std::string buildDataText(const Recordings& recordings);

// The same, left in gText.
void buildText(Recordings& recordings);

// A text as one quoted item, the way it is written to a data file.
std::string quoted(std::string_view text);

} // namespace tally
