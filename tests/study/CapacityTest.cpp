// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Capacity.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;

TEST(StudyCapacity, TheHighestQuarterOfAnHourOfAllFilesCounts) {
    // 5-minute readings; A's best three are 30, 40, 50, B's 60, 60, 60.
    const std::vector<Channel> files = {amps({300, 400, 500, 0}), amps({0, 600, 600, 600})};
    const auto capacity = capacityOf(files, axis(on(2024, 1, 1), 5, 4), {100, 25, 1.25});
    ASSERT_TRUE(capacity);
    EXPECT_DOUBLE_EQ(capacity->demand.value, 60.0);
    EXPECT_EQ(capacity->demand.at, on(2024, 1, 1, 0, 5));
    EXPECT_EQ(capacity->file, 1U);
    EXPECT_DOUBLE_EQ(capacity->required, 100.0); // 75 + 25
    EXPECT_DOUBLE_EQ(capacity->spare, 0);
    EXPECT_TRUE(capacity->ok);
}

TEST(StudyCapacity, OfFilesWithTheSameDemandTheFirstIsNamed) {
    const std::vector<Channel> files = {amps({100, 500}), amps({500, 100})};
    const auto capacity = capacityOf(files, axis(on(2024, 1, 1), 15, 2), {100, 0, 1.25});
    EXPECT_EQ(capacity->file, 0U);
    EXPECT_EQ(capacity->demand.at, on(2024, 1, 1, 0, 15));
}

TEST(StudyCapacity, OnePartInAThousandMillionIsForgiven) {
    const std::vector<Channel> files = {amps({1000})};
    const Axis quarter = axis(on(2024, 1, 1), 15, 1);
    EXPECT_TRUE(capacityOf(files, quarter, {100, 100e-10, 1})->ok);
    EXPECT_FALSE(capacityOf(files, quarter, {100, 100e-8, 1})->ok);
}

TEST(StudyCapacity, ThirtyDaysAreEnough) {
    const auto days = [](std::size_t points) {
        const std::vector<Channel> files = {amps(std::vector<std::int32_t>(points, 10))};
        return *capacityOf(files, axis(on(2024, 1, 1), 15, points), {100, 0, 1.25});
    };
    EXPECT_TRUE(days(30 * 96).enoughDays);
    EXPECT_FALSE(days(30 * 96 - 1).enoughDays);
    EXPECT_DOUBLE_EQ(days(24).days, 0.25);
}

TEST(StudyCapacity, LessThanAQuarterOfAnHourSaysNothing) {
    const std::vector<Channel> files = {amps({10, 10})};
    EXPECT_FALSE(capacityOf(files, axis(on(2024, 1, 1), 5, 2), {100, 0, 1.25}));
}

} // namespace
} // namespace tally::study
