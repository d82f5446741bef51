// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Load.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tally::archive {

// Whole numbers that the figures of a stretch of load are made from: tenths, times `Scale::one` where finer
// readings were averaged, so that nothing is rounded before it is compared.
struct Figures {
    std::int64_t points = 0;
    std::int64_t total = 0;   // of the averages
    std::int64_t highest = 0; // of the maxima, with the earliest time
    ReadingTime highestAt;
    std::int64_t blocks = 0;       // complete 15-minute demand windows
    std::int64_t blockTotal = 0;   // of the sums of their readings
    std::int64_t blockHighest = 0; // highest of those sums

    // Adds a later stretch (equal maxima keep the earlier time).
    void add(const Figures& later);
};

// What a demand window of a quarter of an hour is made of.
inline constexpr int demandWindow = 15;

// The mean in the unit; nothing without a point. `scale`: what one tenth counts as.
std::optional<double> meanOf(const Figures& figures, std::int64_t scale = 1);
// Mean over highest of the block demands. Nothing for volts, a highest demand of 0 or no complete window.
std::optional<double> loadFactorOf(const Figures& figures, char unit);

// The figures of each day of a load, the first day first; a load has no day without a point.
struct DayFigures {
    int firstDay = 0;
    std::vector<Figures> days;

    Figures whole() const { return between(firstDay, firstDay + static_cast<int>(days.size()) - 1); }
    // Of the days from `from` to `to`, both included, as far as there are any.
    Figures between(int from, int to) const;
};

DayFigures dayFiguresOf(const Load& load);

// Day figures as bytes and back; nothing when the bytes are none.
std::string packDays(const DayFigures& figures);
std::optional<DayFigures> unpackDays(std::string_view bytes);

} // namespace tally::archive
