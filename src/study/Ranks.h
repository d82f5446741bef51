// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tally::study {

// The percentile p (0 to 100) of k values sorted low to high is the element of this number, counted from 1:
// the smallest value that at least p % of the values do not pass.
constexpr std::size_t percentileRank(int p, std::size_t k) {
    return std::max<std::size_t>((static_cast<std::size_t>(p) * k + 99) / 100, 1);
}

// The percentile of some values, which are put into another order. At least one value.
template <typename Number>
Number percentile(std::span<Number> values, int p) {
    const auto nth = values.begin() + static_cast<std::ptrdiff_t>(percentileRank(p, values.size()) - 1);
    std::nth_element(values.begin(), nth, values.end());
    return *nth;
}

// The elements that have these numbers (counted from 1, rising) once the loads are sorted low to high. By
// counting: loads are 16-bit values or sums of three of them.
std::vector<std::int32_t> elementsAt(std::span<const std::int32_t> loads, std::span<const std::size_t> ranks);

} // namespace tally::study
