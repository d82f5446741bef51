// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <optional>

namespace tally {

// A week begins on Monday.
enum class Period { day, week, month };

// The day, week or month beside what is shown (a range of the file): the next one for a positive direction,
// else the one before. Where what is shown reaches over several, its first one, or its last. Only the part
// that lies in `whole`; nothing when none does.
std::optional<Range> periodBeside(const FileFacts& info, const Range& whole, const Range& shown,
                                  Period period, int direction);

} // namespace tally
