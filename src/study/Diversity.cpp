// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Diversity.h"

#include "study/Demand.h"

#include <algorithm>

namespace tally::study {

std::optional<Diversity> diversityOf(std::span<const Channel> files, const Axis& axis, int window) {
    if (files.size() < 2 || files.front().unit != Unit::amps)
        return std::nullopt;
    const Blocks blocks = blocksOf(axis, window);
    Diversity diversity;
    if (blocks.count == 0)
        return diversity;
    std::vector<std::int64_t> together(blocks.count);
    std::int64_t peaks = 0;
    for (const Channel& file : files) {
        const std::vector<std::int64_t> sums = blockSums(file, blocks);
        peaks += *std::max_element(sums.begin(), sums.end());
        for (std::size_t block = 0; block < blocks.count; ++block)
            together[block] += sums[block];
    }
    const auto highest = std::max_element(together.begin(), together.end());
    const double tenths = 10 * static_cast<double>(blocks.readings);
    diversity.sumOfPeaks = static_cast<double>(peaks) / tenths;
    diversity.peakOfSum = {static_cast<double>(*highest) / tenths,
                           blocks.at(static_cast<std::size_t>(highest - together.begin()))};
    if (*highest != 0)
        diversity.diversityFactor = static_cast<double>(peaks) / static_cast<double>(*highest);
    if (peaks != 0)
        diversity.coincidenceFactor = static_cast<double>(*highest) / static_cast<double>(peaks);
    return diversity;
}

} // namespace tally::study
