// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tally {

// A path cut into the folder that holds the file and its name there. Paths are bytes, whatever they spell.
struct FilePath {
    std::string folder; // "." for a name alone
    std::string name;
};

FilePath splitPath(const std::string& path);

// The full path of a file, without "." and ".." on its way; an empty one stays empty.
std::string absolutePath(const std::string& path);

// Where a path leads when its last part is a link, also one to a file that is not there yet. A ring of links
// is given as it stands.
std::string throughLinks(std::string path);

} // namespace tally
