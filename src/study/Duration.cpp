// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Duration.h"

#include "study/Ranks.h"

namespace tally::study {

Duration durationOf(const Channel& channel) {
    const std::size_t count = channel.loads.size();
    constexpr int last = 100;
    std::array<std::size_t, last + 1> ranks = {};
    // Counted from the low end, so from the last entry on.
    for (int p = last; p >= 0; --p)
        ranks[static_cast<std::size_t>(last - p)] = count + 1 - percentileRank(p, count);
    const std::vector<std::int32_t> rising = elementsAt(channel.loads, ranks);
    Duration curve = {};
    for (std::size_t p = 0; p < curve.size(); ++p)
        curve[p] = channel.value(rising[last - p]);
    return curve;
}

} // namespace tally::study
