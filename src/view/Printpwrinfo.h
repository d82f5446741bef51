// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/Power.h"

#include <string>

namespace tally {

// The summary of a power, UTF-8, lines ended by CR LF; `selected` says that its range is an applied span,
// which the summary then names. Throws Subscript out of range when no file is open.
std::string Printpwrinfo(const Recordings& recordings, const Power& power, bool selected);

} // namespace tally
