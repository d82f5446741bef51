// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Day.h"
#include "archive/DayFigures.h"

#include <algorithm>

namespace tally::archive {

// Sums the readings of one demand window after the other and hands the complete ones over.
class BlockCounter {
public:
    explicit BlockCounter(int interval) : needed_(std::max(demandWindow / interval, 1)) {}

    // The figures of the day that the window lies in; a window never passes midnight.
    void add(ReadingTime at, std::int64_t value, Figures& day) {
        const std::int64_t block = floorDiv(at.minutes, demandWindow);
        if (block != block_ || held_ == 0) {
            block_ = block;
            held_ = 0;
            sum_ = 0;
        }
        sum_ += value;
        if (++held_ < needed_)
            return;
        day.blockHighest = day.blocks == 0 ? sum_ : std::max(day.blockHighest, sum_);
        day.blockTotal += sum_;
        ++day.blocks;
        held_ = 0;
    }

private:
    int needed_;
    int held_ = 0;
    std::int64_t block_ = 0;
    std::int64_t sum_ = 0;
};

} // namespace tally::archive
