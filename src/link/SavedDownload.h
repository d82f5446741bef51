// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "core/Settings.h"

#include <string>
#include <string_view>

namespace tally {

// The file name that is proposed for a received text (bytes): serial number and day of the header's time,
// "4127-2024-03-31.dat"; without one of them the other alone, without both "recording.dat". Signs that a file
// name cannot have everywhere become "_".
std::string proposedName(std::string_view gText);

// The question where a download goes: the proposed name in the folder where the last one went, in the default
// directory before there was one.
FileQuestion saveQuestion(std::string_view gText, const Settings& settings, const std::string& defaultFolder,
                          std::string_view filter);

// What is said of a download that was saved, and where (UTF-8).
std::string savedText(std::string_view gText, const std::string& path);

// A download was saved under a path: the folder is the next one's, and the file is one of the recent ones.
void noteSaved(Settings& settings, const std::string& path);

} // namespace tally
