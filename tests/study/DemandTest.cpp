// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Demand.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;
using testing::volts;

TEST(StudyDemand, AWindowIsOneOfTheSixAndWholeIntervals) {
    EXPECT_TRUE(isDemandWindow(15, 15));
    EXPECT_TRUE(isDemandWindow(60, 15));
    EXPECT_TRUE(isDemandWindow(20, 5));
    EXPECT_TRUE(isDemandWindow(5, 1));
    EXPECT_FALSE(isDemandWindow(20, 15));
    EXPECT_FALSE(isDemandWindow(10, 15));
    EXPECT_FALSE(isDemandWindow(45, 15));
    EXPECT_FALSE(isDemandWindow(0, 1));
}

TEST(StudyDemand, WindowsBeginOnTheClockAndOnlyCompleteOnesCount) {
    // 00:15 to 02:00: of the hours only 01:00 is complete.
    const Blocks blocks = blocksOf(axis(on(2024, 1, 1, 0, 15), 15, 7), 60);
    EXPECT_EQ(blocks.readings, 4U);
    EXPECT_EQ(blocks.first, 3U);
    EXPECT_EQ(blocks.count, 1U);
    EXPECT_EQ(blocks.start, on(2024, 1, 1, 1, 0));
}

TEST(StudyDemand, WindowsGoOnOverMidnightAndTheLeapDay) {
    // 23:50 to 00:10 in steps of 5: one window of 15 minutes, from midnight, is not over.
    const Blocks part = blocksOf(axis(on(2024, 2, 28, 23, 50), 5, 4), 15);
    EXPECT_EQ(part.first, 2U);
    EXPECT_EQ(part.count, 0U);
    const Blocks whole = blocksOf(axis(on(2024, 2, 28, 23, 50), 5, 8), 15);
    EXPECT_EQ(whole.count, 2U);
    EXPECT_EQ(whole.at(0), on(2024, 2, 29, 0, 0));
    EXPECT_EQ(whole.at(1), on(2024, 2, 29, 0, 15));
}

TEST(StudyDemand, ReadingsOffTheClockLieInTheWindowThatHoldsTheirTime) {
    // 10:07, 10:22, 10:37, 10:52 are the hour from 10:00.
    const Blocks blocks = blocksOf(axis(on(2024, 1, 1, 10, 7), 15, 5), 60);
    EXPECT_EQ(blocks.first, 0U);
    EXPECT_EQ(blocks.count, 1U);
    EXPECT_EQ(blocks.start, on(2024, 1, 1, 10, 0));
}

TEST(StudyDemand, BlockAndRollingDemandByHand) {
    // 5-minute readings from 00:00: 10 20 30 | 40 50 0 | 0 90 A.
    const Demand demand =
        demandOf(amps({100, 200, 300, 400, 500, 0, 0, 900}), axis(on(2024, 1, 1), 5, 8), 15);
    ASSERT_TRUE(demand.block);
    EXPECT_EQ(demand.blocks.count, 2U);
    EXPECT_DOUBLE_EQ(demand.block->value, 30.0);
    EXPECT_EQ(demand.block->at, on(2024, 1, 1, 0, 15));
    // 30 + 40 + 50 = 120 from 00:10; 0 + 0 + 90 is less.
    EXPECT_DOUBLE_EQ(demand.rolling->value, 40.0);
    EXPECT_EQ(demand.rolling->at, on(2024, 1, 1, 0, 10));
    // Block demands 20 and 30: mean 25 / 30; (400 + 900) / 2 / 900.
    EXPECT_DOUBLE_EQ(*demand.loadFactor, 25.0 / 30);
    EXPECT_DOUBLE_EQ(*demand.lossFactor, 650.0 / 900);
}

TEST(StudyDemand, OfEqualDemandsTheEarliestCounts) {
    const Demand demand = demandOf(amps({10, 30, 20, 20, 30, 10}), axis(on(2024, 1, 1), 5, 6), 10);
    EXPECT_EQ(demand.block->at, on(2024, 1, 1, 0, 0));
    EXPECT_EQ(demand.rolling->at, on(2024, 1, 1, 0, 5));
    EXPECT_DOUBLE_EQ(demand.rolling->value, 2.5);
}

TEST(StudyDemand, AConstantLoadHasTheFactorsOne) {
    // 0.7 has no exact form: sums of it would not come out even.
    const Demand demand =
        demandOf(amps(std::vector<std::int32_t>(1000, 7)), axis(on(2024, 1, 1), 5, 1000), 15);
    EXPECT_EQ(*demand.loadFactor, 1.0);
    EXPECT_EQ(*demand.lossFactor, 1.0);
}

TEST(StudyDemand, WithoutACompleteWindowThereIsNoBlockDemand) {
    const Demand demand = demandOf(amps({10, 20, 30}), axis(on(2024, 1, 1, 0, 15), 15, 3), 60);
    EXPECT_FALSE(demand.block);
    EXPECT_FALSE(demand.rolling);
    EXPECT_FALSE(demand.loadFactor);
    EXPECT_FALSE(demand.lossFactor);
    EXPECT_EQ(demand.blocks.count, 0U);
}

TEST(StudyDemand, ARollingDemandNeedsNoCompleteWindow) {
    const Demand demand = demandOf(amps({10, 20, 30, 40}), axis(on(2024, 1, 1, 0, 15), 15, 4), 60);
    EXPECT_FALSE(demand.block);
    EXPECT_DOUBLE_EQ(demand.rolling->value, 2.5);
}

TEST(StudyDemand, VoltsAndADemandOfZeroHaveNoFactors) {
    const Demand dead = demandOf(amps({0, 0}), axis(on(2024, 1, 1), 15, 2), 15);
    EXPECT_DOUBLE_EQ(dead.block->value, 0);
    EXPECT_FALSE(dead.loadFactor);
    const Demand voltage = demandOf(volts({1200, 1210}), axis(on(2024, 1, 1), 15, 2), 15);
    EXPECT_DOUBLE_EQ(voltage.block->value, 121.0);
    EXPECT_FALSE(voltage.loadFactor);
    EXPECT_FALSE(voltage.lossFactor);
}

} // namespace
} // namespace tally::study
