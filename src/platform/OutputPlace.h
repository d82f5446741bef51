// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace tally {

// Whether a file of so many bytes could be written under a path (bytes), before anybody works for it. Throws
// what writing would throw: Path not found, Path/File access error, Permission denied, Disk full.
void checkOutputPlace(const std::string& path, std::uint64_t bytes);

} // namespace tally
