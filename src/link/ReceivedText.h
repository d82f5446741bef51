// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tally {

// What a received text (bytes) says about itself, and the two repairs that make a data text of it.

// Where the recording starts: the first family initial, or the end of the text.
std::size_t startOfRecording(std::string_view gText);

// Puts the model code at the start of the recording into upper case. False when none of the first 32,766
// characters begins one.
bool upperCaseModel(std::string& gText);

// The header: from the start of the recording to the end of its line, without the end.
std::string headerOf(std::string_view gText);

// Writes a mode letter into the header of a text that reaches so far.
void setModeLetter(std::string& gText, char letter);

// Writes a time into the header of a text; a header that is too short is filled up with blanks.
void setHeaderTime(std::string& gText, ReadingTime time);

} // namespace tally
