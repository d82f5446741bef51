// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <string>
#include <string_view>

namespace tally {

// The summary of the last power plot, UTF-8, lines ended by CR LF; `vline` is the line voltage as the
// setting holds it. Throws Subscript out of range when no file is open.
std::string Printpwrinfo(const Recordings& recordings, const DisplayState& state, std::string_view vline);

} // namespace tally
