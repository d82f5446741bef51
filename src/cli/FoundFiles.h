// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tally::cli {

// A data file below a path that was named, with the names that it is found by: those of the named folder, of
// the folders below it and of the file.
struct FoundFile {
    std::string path; // full
    std::vector<std::string> names;
};

// The files that a path names: itself, or every "*.dat" in a folder and below it, in each folder in the order
// of the names, byte by byte. Links to folders are not followed; only regular files count. `receive` gives
// false to stop; `failed` gets what cannot be read.
void eachFile(const std::string& path, const std::function<bool(FoundFile&&)>& receive,
              const std::function<void(const std::string& path, const std::string& reason)>& failed);

} // namespace tally::cli
