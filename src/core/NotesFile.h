// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Recordings.h"

#include <array>
#include <string>
#include <string_view>

namespace tally {

using Notes = std::array<std::string, 4>; // Location, Circuit, Name, Other (UTF-8)

// The notes file that belongs to a data file.
std::string notesPath(const std::string& dataPath);

// Four items, comma or line separated, plain or quoted (bytes); what is missing is empty.
Notes parseNotes(std::string_view bytes);

// Four plain lines, in Windows-1252 where every character fits, else UTF-8 with a byte-order mark. A line
// break inside a note becomes a blank.
std::string formatNotes(const Notes& notes);

// The notes beside a data file; empty ones when there are none. Throws file faults other than a missing file.
Notes readNotes(const Files& files, const std::string& dataPath);

// Writes the notes file of an open slot, then keeps the notes in gNotes. Throws file faults, nothing
// changed; also when the notes file was there but could not be read when the data file was opened.
void saveNotes(Recordings& recordings, Files& files, int slot, const Notes& notes);

} // namespace tally
