// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/FoundFile.h"

#include <functional>
#include <string>

namespace tally {

// The files that a path names: itself, or every "*.dat" in a folder and below it, in each folder in the order
// of the names, byte by byte. Links to folders are not followed; only regular files count. `receive` gives
// false to stop; `failed` gets what cannot be read.
void eachFile(const std::string& path, const std::function<bool(archive::FoundFile&&)>& receive,
              const std::function<void(const std::string& path, const std::string& reason)>& failed);

} // namespace tally
