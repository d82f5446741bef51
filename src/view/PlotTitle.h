// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Recordings.h"

#include <optional>
#include <string>

namespace tally {

// The title block below its first line: the file's extremes, mode, date printed, notes of every file and the
// marked span (readings of the first file); lines joined by CR LF.
std::string titleBlock(const Recordings& recordings, const std::optional<Range>& selected,
                       const Clock& clock);

} // namespace tally
