// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tally {

// Dialogs of the system over the window in use: a folder that is there, nothing when cancelled; data files,
// none when cancelled. Paths are bytes.
std::optional<std::string> chooseFolder(const std::string& title);
std::vector<std::string> chooseDataFiles(const std::string& title);

} // namespace tally
