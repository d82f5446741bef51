// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstddef>
#include <cstdint>

namespace tally::study {

inline constexpr int minutesPerDay = 24 * 60;

// Whole days since 1970-01-01, rounded down; the date of a moment as one number.
constexpr std::int64_t dayOf(ReadingTime time) {
    return time.minutes >= 0 ? time.minutes / minutesPerDay
                             : -((-time.minutes + minutesPerDay - 1) / minutesPerDay);
}

// 0 to 1439.
constexpr int minuteOfDay(ReadingTime time) {
    return static_cast<int>(time.minutes - dayOf(time) * minutesPerDay);
}

// The times that all channels of a study share: one point an interval, each standing for the interval that
// begins at its time.
struct Axis {
    ReadingTime start;
    int interval = 15; // minutes
    std::size_t points = 0;

    ReadingTime at(std::size_t point) const { return start + static_cast<std::int64_t>(point) * interval; }
    // When the interval of the last point is over.
    ReadingTime end() const { return at(points); }
    // Minutes that a number of points cover.
    std::int64_t minutes(std::size_t count) const { return static_cast<std::int64_t>(count) * interval; }
};

// A load and when it was.
struct LoadAt {
    double value = 0; // in the channel's unit
    ReadingTime at;
};

} // namespace tally::study
