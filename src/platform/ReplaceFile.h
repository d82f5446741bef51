// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tally {

enum class Access { usual, owner }; // as the user's mask says, or for the user alone

// Replaces a file as a whole: written beside it, brought to the disk, and only then put in its place; the
// folder is brought to the disk as well. A file that was there keeps its mode, and its owner when root
// writes. What a killed program left beside it is removed. Throws Disk full, Permission denied, Path not
// found, Path/File access error, Device I/O error; the old file then stands as it was.
void replaceFile(const std::string& path, std::string_view bytes, Access access = Access::usual);

} // namespace tally
