// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tally::cli {

// Which of the endings (lower case, without point) the path given with -o has, whatever its letter case.
// Throws WrongUsage for any other.
std::string endingOf(const std::string& path, const std::vector<std::string>& endings);

// The path without the point and the ending that it has.
std::string withoutEnding(const std::string& path, const std::string& ending);

} // namespace tally::cli
