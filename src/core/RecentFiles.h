// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Settings.h"

#include <array>
#include <string>

namespace tally {

// The four data files opened last, newest first; an entry may be empty (UTF-8 paths).
std::array<std::string, 4> recentFiles(const Settings& settings);

// Puts a path first and shifts the others down. A path that is in the list already stands in it twice.
void addRecentFile(Settings& settings, const std::string& path);

} // namespace tally
