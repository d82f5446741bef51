// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Diversity.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;
using testing::volts;

TEST(StudyDiversity, PeaksThatFallApartAddUpToMoreThanTheirSum) {
    // Half hours: A 30, 10; B 10, 20: peaks 30 + 20, together 40 and 30.
    const std::vector<Channel> files = {amps({200, 400, 100, 100}), amps({100, 100, 300, 100})};
    const auto diversity = diversityOf(files, axis(on(2024, 1, 1), 15, 4), 30);
    ASSERT_TRUE(diversity);
    EXPECT_DOUBLE_EQ(*diversity->sumOfPeaks, 50.0);
    EXPECT_DOUBLE_EQ(diversity->peakOfSum->value, 40.0);
    EXPECT_EQ(diversity->peakOfSum->at, on(2024, 1, 1, 0, 0));
    EXPECT_DOUBLE_EQ(*diversity->diversityFactor, 1.25);
    EXPECT_DOUBLE_EQ(*diversity->coincidenceFactor, 0.8);
}

TEST(StudyDiversity, WithoutLoadThereAreNoFactors) {
    const std::vector<Channel> files = {amps({0, 0}), amps({0, 0})};
    const auto diversity = diversityOf(files, axis(on(2024, 1, 1), 15, 2), 15);
    EXPECT_DOUBLE_EQ(*diversity->sumOfPeaks, 0);
    EXPECT_DOUBLE_EQ(diversity->peakOfSum->value, 0);
    EXPECT_FALSE(diversity->diversityFactor);
    EXPECT_FALSE(diversity->coincidenceFactor);
}

TEST(StudyDiversity, WithoutACompleteWindowThereIsNothing) {
    const std::vector<Channel> files = {amps({10, 20}), amps({10, 20})};
    const auto diversity = diversityOf(files, axis(on(2024, 1, 1), 15, 2), 60);
    ASSERT_TRUE(diversity);
    EXPECT_FALSE(diversity->sumOfPeaks);
    EXPECT_FALSE(diversity->peakOfSum);
}

TEST(StudyDiversity, IsForTwoOrThreeFilesOfAmps) {
    const std::vector<Channel> one = {amps({10})};
    const std::vector<Channel> voltages = {volts({10}), volts({10})};
    EXPECT_FALSE(diversityOf(one, axis(on(2024, 1, 1), 15, 1), 15));
    EXPECT_FALSE(diversityOf(voltages, axis(on(2024, 1, 1), 15, 1), 15));
}

} // namespace
} // namespace tally::study
