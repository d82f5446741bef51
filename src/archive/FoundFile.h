// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tally::archive {

// A data file below a path that was named, with the names that it is found by: those of the named folder, of
// the folders below it and of the file.
struct FoundFile {
    std::string path; // full
    std::vector<std::string> names;
};

} // namespace tally::archive
