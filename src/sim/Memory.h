// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <vector>

namespace tally::sim {

// What an instrument has recorded. A recording goes on by itself: how much of it there is follows from the
// time at which one looks.
struct Memory {
    char mode = 'a';      // "a" to "l", or a blank: 15-minute averages in a continuous loop
    ReadingTime begin;    // the recording was started
    bool stopped = false; // by hand, at stoppedAt
    ReadingTime stoppedAt;
    int samples = 10710;       // readings that fit
    std::vector<int> readings; // oldest first, instead of the load that is made up

    int minutes() const;           // per interval
    int valuesPerInterval() const; // 3 for Min/Max/Avg, else 1
    bool stopsWhenFull() const;
    // Whether it records at this time; a full memory that stops does not.
    bool isRunning(ReadingTime now) const;
    // The last moment that was recorded: now, or when it stopped.
    ReadingTime recordedUntil(ReadingTime now) const;
    // What an instrument sends, newest first; Min/Max/Avg as minimum, maximum, average of each interval.
    // Whole units of 0 to 500.
    std::vector<int> newestFirst(ReadingTime now) const;
};

// A memory that holds `count` readings at `now`.
Memory filledMemory(char mode, int samples, int count, ReadingTime now);

} // namespace tally::sim
