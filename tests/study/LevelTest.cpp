// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Level.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;

TEST(StudyLevel, OfEqualExtremesTheEarliestCounts) {
    const Level level = levelOf(amps({100, 300, 50, 300, 50}), axis(on(2024, 2, 28, 23, 30), 15, 5));
    EXPECT_DOUBLE_EQ(level.mean, 16.0); // 80.0 / 5
    EXPECT_DOUBLE_EQ(level.max.value, 30.0);
    EXPECT_EQ(level.max.at, on(2024, 2, 28, 23, 45));
    EXPECT_DOUBLE_EQ(level.min.value, 5.0);
    EXPECT_EQ(level.min.at, on(2024, 2, 29, 0, 0)); // 2024 has a 29 February
}

TEST(StudyLevel, ExtremesOfAMinMaxAvgRecordingAreThoseOfItsExtremes) {
    Channel channel = amps({100, 200});
    channel.maxima = {500, 250};
    channel.minima = {90, 10};
    const Level level = levelOf(channel, axis(on(2024, 1, 1), 1, 2));
    EXPECT_DOUBLE_EQ(level.mean, 15.0);
    EXPECT_DOUBLE_EQ(level.max.value, 50.0);
    EXPECT_EQ(level.max.at, on(2024, 1, 1, 0, 0));
    EXPECT_DOUBLE_EQ(level.min.value, 1.0);
    EXPECT_EQ(level.min.at, on(2024, 1, 1, 0, 1));
}

TEST(StudyLevel, OneReadingIsItsOwnMeanMaximumAndMinimum) {
    const Level level = levelOf(amps({77}), axis(on(2024, 12, 31, 23, 45), 15, 1));
    EXPECT_DOUBLE_EQ(level.mean, 7.7);
    EXPECT_DOUBLE_EQ(level.max.value, 7.7);
    EXPECT_DOUBLE_EQ(level.min.value, 7.7);
}

TEST(StudyLevel, PowerFollowsTheSummedCurrentsInSinglePrecision) {
    Channel power = amps({3000, 1500}, "power");
    power.unit = Unit::kilowatts;
    power.scale = {13.8F, 1.0F};
    power.files = 3;
    // Three times 100.0 A at 13.8 kV: 3000 / 3 * 1.732 / 10 * 13.8.
    const Level level = levelOf(power, axis(on(2024, 1, 1), 15, 2));
    EXPECT_NEAR(level.max.value, 2390.16, 0.001);
    EXPECT_NEAR(level.min.value, 1195.08, 0.001);
    EXPECT_NEAR(level.mean, 1792.62, 0.001);
    power.files = 2;
    EXPECT_NEAR(power.value(3000), 4140.0, 0.001); // 300.0 A as they are
}

} // namespace
} // namespace tally::study
