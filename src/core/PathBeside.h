// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tally {

// The path of a file that belongs to a data file: its last three characters replaced by the extension ("not",
// "prn"). A name that is shorter is followed by a point and the extension, so that both lie in one folder;
// one that is no UTF-8 is cut byte by byte.
std::string pathBeside(const std::string& dataPath, std::string_view extension);

} // namespace tally
