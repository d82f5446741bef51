// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace tally {

// The texts of the window that hold values, in UTF-8, each value as "%1" to "%9".
std::span<const char* const> patterns();

} // namespace tally
