// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Limits.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;

TEST(StudyLimits, ARunIsStrictlyBeyondTheLimit) {
    const Limits limits = limitsOf(amps({100, 101, 150, 150, 100, 99, 100, 120}),
                                   axis(on(2024, 3, 31, 0, 0), 15, 8), decimalOf("10"), decimalOf("10"));
    ASSERT_EQ(limits.above.size(), 2U);
    EXPECT_EQ(limits.above[0].start, on(2024, 3, 31, 0, 15));
    EXPECT_EQ(limits.above[0].end, on(2024, 3, 31, 1, 0));
    EXPECT_EQ(limits.above[0].minutes, 45);
    EXPECT_DOUBLE_EQ(limits.above[0].peak.value, 15.0);
    EXPECT_EQ(limits.above[0].peak.at, on(2024, 3, 31, 0, 30));
    EXPECT_EQ(limits.above[1].end, on(2024, 3, 31, 2, 0)); // the clock is never put forward
    EXPECT_EQ(limits.minutesAbove, 60);
    ASSERT_EQ(limits.below.size(), 1U);
    EXPECT_EQ(limits.below[0].start, on(2024, 3, 31, 1, 15));
    EXPECT_EQ(limits.minutesBelow, 15);
}

TEST(StudyLimits, ALimitBetweenTwoTenthsPartsThem) {
    const auto minutes = [](const char* high) {
        return limitsOf(amps({122, 123, 124}), axis(on(2024, 1, 1), 1, 3), decimalOf(high), {}).minutesAbove;
    };
    EXPECT_EQ(minutes("12.3"), 1);
    EXPECT_EQ(minutes("12.29"), 2);
    EXPECT_EQ(minutes("12.31"), 1);
    const auto below = [](const char* low) {
        return limitsOf(amps({122, 123, 124}), axis(on(2024, 1, 1), 1, 3), {}, decimalOf(low)).minutesBelow;
    };
    EXPECT_EQ(below("12.3"), 1);
    EXPECT_EQ(below("12.29"), 1);
    EXPECT_EQ(below("12.31"), 2);
}

TEST(StudyLimits, MaximaAreHeldAgainstTheHighLimitAndMinimaAgainstTheLowOne) {
    Channel channel = amps({100, 100, 100});
    channel.maxima = {100, 200, 300};
    channel.minima = {10, 100, 20};
    const Limits limits = limitsOf(channel, axis(on(2024, 1, 1), 1, 3), decimalOf("15"), decimalOf("5"));
    ASSERT_EQ(limits.above.size(), 1U);
    EXPECT_DOUBLE_EQ(limits.above[0].peak.value, 30.0);
    EXPECT_EQ(limits.minutesAbove, 2);
    ASSERT_EQ(limits.below.size(), 2U);
    EXPECT_DOUBLE_EQ(limits.below[1].peak.value, 2.0);
}

TEST(StudyLimits, WithoutALimitAndForPowerThereIsNoRun) {
    EXPECT_TRUE(limitsOf(amps({100}), axis(on(2024, 1, 1), 1, 1), {}, {}).above.empty());
    Channel power = amps({100}, "power");
    power.unit = Unit::kilowatts;
    const Limits limits = limitsOf(power, axis(on(2024, 1, 1), 1, 1), decimalOf("0"), decimalOf("99999"));
    EXPECT_TRUE(limits.above.empty());
    EXPECT_TRUE(limits.below.empty());
    EXPECT_EQ(limits.minutesBelow, 0);
}

} // namespace
} // namespace tally::study
