// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Level.h"

#include <algorithm>

namespace tally::study {

Level levelOf(const Channel& channel, const Axis& axis) {
    const auto& highs = channel.highs();
    const auto& lows = channel.lows();
    const auto highest = std::max_element(highs.begin(), highs.end());
    const auto lowest = std::min_element(lows.begin(), lows.end());
    const auto at = [&](const auto& all, auto found) {
        return LoadAt{channel.value(*found), axis.at(static_cast<std::size_t>(found - all.begin()))};
    };
    return {channel.mean(channel.loads), at(highs, highest), at(lows, lowest)};
}

} // namespace tally::study
