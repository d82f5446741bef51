// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace tally::study {

// The demand windows that a study may have, minutes.
inline constexpr std::array<int, 6> demandWindows = {5, 10, 15, 20, 30, 60};
inline constexpr int usualWindow = 15;

// Whether a window is one of the six and a whole multiple of the interval (minutes).
bool isDemandWindow(int window, int interval);

// The complete windows of an axis: they begin at whole multiples of the window after midnight and hold every
// reading whose time lies in them. Only the first and the last window of a span can be incomplete.
struct Blocks {
    int window = usualWindow; // minutes
    std::size_t readings = 1; // in each window
    std::size_t first = 0;    // point that the first window begins with
    std::size_t count = 0;    // complete windows
    ReadingTime start;        // when the first window begins

    std::size_t point(std::size_t block) const { return first + block * readings; }
    ReadingTime at(std::size_t block) const { return start + static_cast<std::int64_t>(block) * window; }
};

// A window that fits the axis.
Blocks blocksOf(const Axis& axis, int window);

// Summed loads of each window: what demands are compared by.
std::vector<std::int64_t> blockSums(const Channel& channel, const Blocks& blocks);
// The demand of one window in the channel's unit: the mean of its loads.
double blockDemand(const Channel& channel, const Blocks& blocks, std::size_t block);

// Where `readings` consecutive loads have the highest sum, the earliest of equal ones; nothing when there are
// not so many.
struct Stretch {
    std::size_t first = 0;
    std::int64_t sum = 0;
};
std::optional<Stretch> highestStretch(const std::vector<std::int32_t>& loads, std::size_t readings);

// How high the demand of a channel was.
//   block: highest mean of a window that begins on the clock, as a demand meter shows it;
//   rolling: highest mean of any window that long;
//   load factor: mean / highest of the block demands;
//   loss factor: mean of their squares / highest squared, which losses follow as the load factor does energy.
// (Load factor² ≤ loss factor ≤ load factor.) No factors for volts, for a highest demand of 0 and without a
// complete window.
struct Demand {
    Blocks blocks;
    std::optional<LoadAt> block;
    std::optional<LoadAt> rolling;
    std::optional<double> loadFactor;
    std::optional<double> lossFactor;
};

Demand demandOf(const Channel& channel, const Axis& axis, int window);

} // namespace tally::study
