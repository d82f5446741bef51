// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tally::cli {

// The file that each path's result goes into: the path below the folder that all have in common, with "-" for
// "/", its ending replaced by `ending` (without point; its own where that is empty), in `folder`. Of equal
// ones the second gets " (2)", and so on.
std::vector<std::string> resultNames(const std::vector<std::string>& paths, const std::string& folder,
                                     const std::string& ending);

} // namespace tally::cli
