// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Ranks.h"

namespace tally::study {

std::vector<std::int32_t> elementsAt(std::span<const std::int32_t> loads,
                                     std::span<const std::size_t> ranks) {
    std::vector<std::int32_t> elements;
    if (loads.empty())
        return elements;
    const auto [minimum, maximum] = std::minmax_element(loads.begin(), loads.end());
    std::vector<std::uint32_t> counts(static_cast<std::size_t>(*maximum - *minimum) + 1);
    for (const std::int32_t load : loads)
        ++counts[static_cast<std::size_t>(load - *minimum)];
    elements.reserve(ranks.size());
    std::size_t at = 0;
    std::size_t passed = counts.front();
    for (const std::size_t rank : ranks) {
        while (passed < rank)
            passed += counts[++at];
        elements.push_back(*minimum + static_cast<std::int32_t>(at));
    }
    return elements;
}

} // namespace tally::study
