// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <istream>
#include <string>
#include <vector>

namespace tally::cli {

// A file to work on, or why there is none at this path.
struct Listed {
    std::string path;
    std::string problem = {};
};

// The files that paths stand for, in their order: a file itself, a folder its files "*.dat" and those of the
// folders in it, by name, byte by byte; "-" the paths in `names`, one a line. Links to folders inside a
// folder are not followed, and only regular files of a folder count. What cannot be listed stands there with
// its problem; whether a file can be read is left to whoever reads it.
std::vector<Listed> listPaths(const std::vector<std::string>& paths, std::istream& names);

} // namespace tally::cli
