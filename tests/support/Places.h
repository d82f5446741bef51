// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace testing {

// The root of the source tree, and the folder of the built programs. One file holds both paths, so that a
// second clone finds every other test in the compiler cache.
std::string sourceDir();
std::string binDir();

} // namespace testing
