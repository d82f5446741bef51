// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Limits.h"

namespace tally::study {

namespace {

// Stretches where `beyond` holds; `further` tells whether a load lies further out than the peak so far.
template <typename Beyond, typename Further>
std::vector<Run> runsOf(const Channel& channel, const std::vector<std::int32_t>& loads, const Axis& axis,
                        Beyond beyond, Further further) {
    std::vector<Run> runs;
    for (std::size_t first = 0; first < loads.size(); ++first) {
        if (!beyond(loads[first]))
            continue;
        std::size_t peak = first;
        std::size_t end = first + 1;
        for (; end < loads.size() && beyond(loads[end]); ++end)
            if (further(loads[end], loads[peak]))
                peak = end;
        runs.push_back({axis.at(first),
                        axis.at(end),
                        axis.minutes(end - first),
                        {channel.value(loads[peak]), axis.at(peak)}});
        first = end;
    }
    return runs;
}

std::int64_t minutesOf(const std::vector<Run>& runs) {
    std::int64_t minutes = 0;
    for (const Run& run : runs)
        minutes += run.minutes;
    return minutes;
}

} // namespace

Limits limitsOf(const Channel& channel, const Axis& axis, const std::optional<Decimal>& high,
                const std::optional<Decimal>& low) {
    Limits limits;
    if (channel.isPower())
        return limits;
    if (high)
        limits.above = runsOf(
            channel, channel.highs(), axis, [&](std::int32_t load) { return load > high->tenthsDown; },
            [](std::int32_t load, std::int32_t peak) { return load > peak; });
    if (low)
        limits.below = runsOf(
            channel, channel.lows(), axis, [&](std::int32_t load) { return load < low->tenthsUp; },
            [](std::int32_t load, std::int32_t peak) { return load < peak; });
    limits.minutesAbove = minutesOf(limits.above);
    limits.minutesBelow = minutesOf(limits.below);
    return limits;
}

} // namespace tally::study
