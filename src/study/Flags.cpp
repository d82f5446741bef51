// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Flags.h"

#include "study/Ranks.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace tally::study {

namespace {

constexpr std::int64_t flatMinutes = 6 * 60;
constexpr std::size_t zeroReadings = 2;
constexpr std::int64_t changesBeyond = 5;
constexpr std::int64_t partBeyond = 5; // one fifth of the highest reading

Flag flag(std::size_t file, FlagKind kind, const Channel& channel, const Axis& axis, std::size_t first,
          std::size_t readings) {
    return {
        file, kind, axis.at(first), axis.at(first + readings), readings, channel.value(channel.loads[first])};
}

// A run of one value is given once, whole.
void addRuns(std::vector<Flag>& flags, std::size_t file, const Channel& channel, const Axis& axis) {
    const auto& loads = channel.loads;
    for (std::size_t first = 0; first < loads.size();) {
        std::size_t end = first + 1;
        while (end < loads.size() && loads[end] == loads[first])
            ++end;
        const std::size_t readings = end - first;
        if (loads[first] == 0 && readings >= zeroReadings)
            flags.push_back(flag(file, FlagKind::zero, channel, axis, first, readings));
        if (loads[first] != 0 && axis.minutes(readings) >= flatMinutes)
            flags.push_back(flag(file, FlagKind::flat, channel, axis, first, readings));
        first = end;
    }
}

std::int64_t medianChange(const std::vector<std::int32_t>& loads) {
    std::vector<std::int32_t> changes(loads.size() - 1);
    for (std::size_t i = 0; i < changes.size(); ++i)
        changes[i] = std::abs(loads[i + 1] - loads[i]);
    const std::array<std::size_t, 1> median = {percentileRank(50, changes.size())};
    return elementsAt(changes, median).front();
}

void addSpikes(std::vector<Flag>& flags, std::size_t file, const Channel& channel, const Axis& axis) {
    const auto& loads = channel.loads;
    if (loads.size() < 3)
        return;
    const std::int64_t changes = changesBeyond * medianChange(loads);
    const std::int64_t highest = *std::max_element(loads.begin(), loads.end());
    const auto beyond = [&](std::int64_t by) { return by > changes && partBeyond * by > highest; };
    for (std::size_t i = 1; i + 1 < loads.size(); ++i) {
        const std::int64_t before = std::int64_t{loads[i]} - loads[i - 1];
        const std::int64_t after = std::int64_t{loads[i]} - loads[i + 1];
        const bool above = before > 0 && after > 0;
        const bool below = before < 0 && after < 0;
        if ((above || below) && beyond(std::min(std::abs(before), std::abs(after))))
            flags.push_back(flag(file, FlagKind::spike, channel, axis, i, 1));
    }
}

} // namespace

std::vector<Flag> flagsOf(std::span<const Channel> files, const Axis& axis) {
    std::vector<Flag> flags;
    for (std::size_t file = 0; file < files.size(); ++file) {
        addRuns(flags, file, files[file], axis);
        addSpikes(flags, file, files[file], axis);
    }
    std::sort(flags.begin(), flags.end(), [](const Flag& a, const Flag& b) {
        return std::tie(a.start, a.kind, a.file) < std::tie(b.start, b.kind, b.file);
    });
    return flags;
}

} // namespace tally::study
