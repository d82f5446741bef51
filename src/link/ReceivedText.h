// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// What a received text (bytes) says about itself, and the two repairs that make a data text of it.

// Puts the model code at the start of the recording into upper case. False when none of the first 32,766
// characters begins one.
bool upperCaseModel(std::string& gText);

// The header: from the start of the recording to the end of its line, without the end.
std::string headerOf(std::string_view gText);

// The mode letter in lower case; "a" for a blank or a header that is too short.
char modeLetterOf(std::string_view header);

// Column 4 as it was sent: in lower case while the instrument is running.
bool isRunning(std::string_view header);

// Where the 14 characters of the time stand in a header, counted from 0: in the older layout further right.
std::size_t timeColumn(std::string_view header);

// The time of a header; nothing when the field does not read as a date and time.
std::optional<ReadingTime> timeOf(std::string_view header);

// Writes a time into the header of a text; a header that is too short is filled up with blanks.
void setHeaderTime(std::string& gText, ReadingTime time);

} // namespace tally
