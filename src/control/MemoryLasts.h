// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/ModeLetter.h"
#include "core/ReadingTime.h"

#include <cstdint>
#include <string>

namespace tally {

// How long a memory of so many samples lasts at a choice, and until when from `now` on: "The memory lasts 111
// days and 13 hours, until 13:35  Jul 05, 24; then the oldest readings are overwritten."
std::string memoryLasts(const ModeChoice& choice, std::int32_t samples, ReadingTime now);

} // namespace tally
