// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/MemoryLasts.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

const ReadingTime now = toReadingTime({2024, 3, 15, 14, 5});

// 10,710 readings of 15 minutes are 160,650 minutes: 111 days of 1,440 and 810 minutes, 13 hours and a half.
TEST(MemoryLasts, FollowsIntervalKindAndMemory) {
    EXPECT_EQ(memoryLasts({.minutes = 15}, 10710, now),
              "The memory lasts 111 days and 13 hours, until 03:35  Jul 05, 24; then the oldest readings are "
              "overwritten.");
    // A third of them of 1 minute each: 3,570 minutes are 2 days and 11.5 hours.
    EXPECT_EQ(memoryLasts({.minutes = 1, .minMaxAvg = true, .stopWhenFull = true}, 10710, now),
              "The memory lasts 2 days and 11 hours, until 01:35  Mar 18, 24; then the recording stops.");
    // 294 minutes.
    EXPECT_EQ(memoryLasts({.minutes = 1, .stopWhenFull = true}, 294, now),
              "The memory lasts 4 hours and 54 minutes, until 18:59  Mar 15, 24; then the recording stops.");
}

} // namespace
} // namespace tally
