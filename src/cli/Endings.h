// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tally::cli {

// For the check of an option that names a file, a folder or a time: why an empty one will not do.
std::string whyEmpty(const std::string& typed);

// Which of the endings (lower case, without point) the path given with an option has, whatever its letter
// case. Throws WrongUsage for any other.
std::string endingOf(const std::string& path, const std::vector<std::string>& endings,
                     const std::string& option = "-o");

// The path without the point and the ending that it has.
std::string withoutEnding(const std::string& path, const std::string& ending);

} // namespace tally::cli
