// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Channel.h"

#include <array>

namespace tally::study {

// Load duration curve, in the channel's unit: entry p is the load that is reached or passed p % of the time.
// Of the N loads from high to low, entry p is element max(ceil(p·N/100), 1), counted from 1.
using Duration = std::array<double, 101>;

// At least one point.
Duration durationOf(const Channel& channel);

} // namespace tally::study
