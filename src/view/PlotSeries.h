// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/Range.h"

#include <utility>
#include <vector>

namespace tally {

// Every `stride`-th reading of a range from its `offset`-th on, in units.
std::vector<float> seriesValues(const Recordings& recordings, int slot, const Range& range, int stride,
                                int offset);

// The points of such a series that were forced, as runs in order.
std::vector<std::pair<int, int>> forcedRuns(const Recordings& recordings, int slot, const Range& range,
                                            int stride, int offset);

// Runs in order, those that touch or overlap as one.
std::vector<std::pair<int, int>> mergedRuns(std::vector<std::pair<int, int>> runs);

} // namespace tally
