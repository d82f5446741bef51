// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/RunningTime.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(RunningTime, ReadsAsFormatTimeAtEveryStep) {
    for (const char* pattern : {"%H:%M  %b %d, %y", "%y %m %d %H %M", " %H:%M  %b %d, %y,"}) {
        for (const int step : {1, 15, 120, 1500}) {
            ReadingTime time = toReadingTime({2023, 12, 30, 22, 53});
            RunningTime running(pattern, time);
            for (int i = 0; i < 300; ++i) {
                ASSERT_EQ(running.text(), formatTime(time, pattern)) << pattern << " " << step;
                ASSERT_EQ(running.time(), time);
                running.advance(step);
                time = time + step;
            }
        }
    }
}

TEST(RunningTime, CrossesTheEndOfFebruaryInALeapYear) {
    RunningTime running("%y %m %d %H %M", toReadingTime({2024, 2, 29, 23, 59}));
    running.advance(1);
    EXPECT_EQ(running.text(), "24 03 01 00 00");
}

TEST(RunningTime, CanBeSetToAnyTime) {
    RunningTime running("%y %m %d %H %M", toReadingTime({2024, 2, 29, 23, 59}));
    running.set(toReadingTime({1999, 12, 31, 0, 7}));
    EXPECT_EQ(running.text(), "99 12 31 00 07");
    running.advance(60);
    EXPECT_EQ(running.text(), "99 12 31 01 07");
}

TEST(RunningTime, MayStartAtTheEpoch) {
    const RunningTime running("%y %m %d %H %M", {});
    EXPECT_EQ(running.text(), "70 01 01 00 00");
}

} // namespace
} // namespace tally
