// SPDX-License-Identifier: GPL-3.0-or-later
// The figures of a study a second time, in the plainest way: sorting, maps and the definitions as they stand.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace tally::study::plain {

using Loads = std::vector<std::int32_t>; // tenths

inline std::int32_t percentile(Loads values, int p) {
    std::sort(values.begin(), values.end());
    const auto number =
        static_cast<std::size_t>(std::max(std::ceil(p * static_cast<double>(values.size()) / 100), 1.0));
    return values[number - 1];
}

// Sum and beginning (minutes) of every complete window.
inline std::vector<std::pair<std::int64_t, std::int64_t>> windows(const Loads& loads, std::int64_t start,
                                                                  int interval, int window) {
    std::map<std::int64_t, std::pair<std::int64_t, int>> all; // begin: sum, readings
    for (std::size_t i = 0; i < loads.size(); ++i) {
        const std::int64_t time = start + static_cast<std::int64_t>(i) * interval;
        auto& [sum, readings] = all[time - time % window];
        sum += loads[i];
        ++readings;
    }
    std::vector<std::pair<std::int64_t, std::int64_t>> complete;
    for (const auto& [begin, of] : all)
        if (of.second == window / interval)
            complete.emplace_back(of.first, begin);
    return complete;
}

// Highest sum of n consecutive loads and where it begins.
inline std::optional<std::pair<std::int64_t, std::size_t>> rolling(const Loads& loads, std::size_t n) {
    std::optional<std::pair<std::int64_t, std::size_t>> highest;
    for (std::size_t first = 0; first + n <= loads.size(); ++first) {
        std::int64_t sum = 0;
        for (std::size_t i = first; i < first + n; ++i)
            sum += loads[i];
        if (!highest || sum > highest->first)
            highest = {sum, first};
    }
    return highest;
}

// The loads of each slot of the days for which kind(day) holds.
template <typename Kind>
std::map<std::int64_t, Loads> slots(const Loads& loads, std::int64_t start, int interval, Kind kind) {
    std::map<std::int64_t, Loads> all;
    for (std::size_t i = 0; i < loads.size(); ++i) {
        const std::int64_t time = start + static_cast<std::int64_t>(i) * interval;
        if (kind(time / 1440))
            all[time % 1440 / interval].push_back(loads[i]);
    }
    return all;
}

// Points that stand out of both neighbours.
inline std::vector<std::size_t> spikes(const Loads& loads) {
    std::vector<std::size_t> found;
    Loads changes;
    for (std::size_t i = 0; i + 1 < loads.size(); ++i)
        changes.push_back(std::abs(loads[i + 1] - loads[i]));
    const std::int32_t median = percentile(changes, 50);
    const std::int64_t highest = *std::max_element(loads.begin(), loads.end());
    for (std::size_t i = 1; i + 1 < loads.size(); ++i) {
        const int left = loads[i] - loads[i - 1];
        const int right = loads[i] - loads[i + 1];
        const int minimum = std::min(std::abs(left), std::abs(right));
        const bool out = (left > 0) == (right > 0) && left != 0 && right != 0;
        if (out && minimum > 5 * median && minimum * 100LL > 20 * highest)
            found.push_back(i);
    }
    return found;
}

} // namespace tally::study::plain
