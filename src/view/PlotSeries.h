// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/ShownRange.h"

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace tally {

// The readings that a file has in a range; what is missing at its end counts as 0.
std::span<const std::int16_t> present(const Recordings& recordings, int slot, const ShownRange& range);

// Every `stride`-th reading of a range from its `offset`-th on, in units.
std::vector<float> seriesValues(const Recordings& recordings, int slot, const ShownRange& range, int stride,
                                int offset);

// The points of such a series that were forced, as runs in order.
std::vector<std::pair<int, int>> forcedRuns(const Recordings& recordings, int slot, const ShownRange& range,
                                            int stride, int offset);

// Runs in order, those that touch or overlap as one.
std::vector<std::pair<int, int>> mergedRuns(std::vector<std::pair<int, int>> runs);

} // namespace tally
