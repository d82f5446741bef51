// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/FilesTogether.h"
#include "view/Power.h"

#include <string>

namespace tally {

// The summary of a power, UTF-8, lines ended by CR LF; `selected` says that its range is an applied span,
// which the summary then names. `all` is the time of the files as they were opened, also where the recordings
// are cut to the time that they share. Throws Subscript out of range when no file is open.
std::string Printpwrinfo(const Recordings& recordings, const Power& power, bool selected,
                         const TimeOfFiles& all);

} // namespace tally
