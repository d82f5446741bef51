// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <string>
#include <string_view>

namespace tally {

// A text left-justified in a field.
std::string leftIn(std::string_view text, std::size_t width);

// Mode text, interval and range word with the blanks between them.
std::string modeFacts(const FileFacts& info);

// File name and serial number of one file, as one line of a summary.
std::string fileLine(const FileFacts& info);

// The four note lines of one file, each ended by CR LF.
std::string noteLines(const Recordings& recordings, int slot);

} // namespace tally
