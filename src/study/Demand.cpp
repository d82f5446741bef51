// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Demand.h"

#include <algorithm>
#include <numeric>
#include <span>

namespace tally::study {

namespace {

// Two whole numbers divided without their common part, so that equal ratios give equal numbers.
double ratio(std::int64_t part, std::int64_t whole) {
    const std::int64_t common = std::gcd(part, whole);
    return static_cast<double>(part / common) / static_cast<double>(whole / common);
}

void addFactors(Demand& demand, const std::vector<std::int64_t>& sums, std::int64_t highest) {
    const auto count = static_cast<std::int64_t>(sums.size());
    std::int64_t all = 0;
    std::int64_t squares = 0;
    for (const std::int64_t sum : sums) {
        all += sum;
        squares += sum * sum;
    }
    demand.loadFactor = ratio(all, count * highest);
    demand.lossFactor = ratio(squares, count * highest * highest);
}

std::span<const std::int32_t> loadsOf(const Channel& channel, std::size_t first, std::size_t readings) {
    return std::span(channel.loads).subspan(first, readings);
}

} // namespace

bool isDemandWindow(int window, int interval) {
    return std::find(demandWindows.begin(), demandWindows.end(), window) != demandWindows.end() &&
           window % interval == 0;
}

Blocks blocksOf(const Axis& axis, int window) {
    Blocks blocks;
    blocks.window = window;
    blocks.readings = static_cast<std::size_t>(window / axis.interval);
    // How far into its window the first point lies; every window is a whole part of the day.
    const int into = minuteOfDay(axis.start) % window;
    const int missed = into / axis.interval;
    if (missed > 0)
        blocks.first = blocks.readings - static_cast<std::size_t>(missed);
    blocks.start = axis.start - into + (missed > 0 ? window : 0);
    if (axis.points > blocks.first)
        blocks.count = (axis.points - blocks.first) / blocks.readings;
    return blocks;
}

std::vector<std::int64_t> blockSums(const Channel& channel, const Blocks& blocks) {
    std::vector<std::int64_t> sums(blocks.count);
    for (std::size_t block = 0; block < blocks.count; ++block) {
        const auto loads = loadsOf(channel, blocks.point(block), blocks.readings);
        sums[block] = std::accumulate(loads.begin(), loads.end(), std::int64_t{0});
    }
    return sums;
}

double blockDemand(const Channel& channel, const Blocks& blocks, std::size_t block) {
    return channel.mean(loadsOf(channel, blocks.point(block), blocks.readings));
}

std::optional<Stretch> highestStretch(const std::vector<std::int32_t>& loads, std::size_t readings) {
    if (loads.size() < readings)
        return std::nullopt;
    const auto end = loads.begin() + static_cast<std::ptrdiff_t>(readings);
    Stretch highest = {0, std::accumulate(loads.begin(), end, std::int64_t{0})};
    std::int64_t sum = highest.sum;
    for (std::size_t next = readings; next < loads.size(); ++next) {
        sum += loads[next] - loads[next - readings];
        if (sum > highest.sum)
            highest = {next - readings + 1, sum};
    }
    return highest;
}

Demand demandOf(const Channel& channel, const Axis& axis, int window) {
    Demand demand;
    demand.blocks = blocksOf(axis, window);
    const auto readings = demand.blocks.readings;
    if (const auto highest = highestStretch(channel.loads, readings))
        demand.rolling = {channel.mean(loadsOf(channel, highest->first, readings)), axis.at(highest->first)};
    const std::vector<std::int64_t> sums = blockSums(channel, demand.blocks);
    if (sums.empty())
        return demand;
    const auto highest = std::max_element(sums.begin(), sums.end());
    const auto block = static_cast<std::size_t>(highest - sums.begin());
    demand.block = {blockDemand(channel, demand.blocks, block), demand.blocks.at(block)};
    if (channel.unit != Unit::volts && *highest != 0)
        addFactors(demand, sums, *highest);
    return demand;
}

} // namespace tally::study
