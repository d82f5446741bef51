// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Phases.h"

#include "Some.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;
using testing::volts;

TEST(StudyPhases, UnbalanceIsTheGreatestDistanceFromTheMeanOverTheMean) {
    // 100, 90, 80: mean 90, 10 away. 120, 60, 60: mean 80, 40 away.
    const std::vector<Channel> files = {amps({1000, 1200}), amps({900, 600}), amps({800, 600})};
    const auto phases = phasesOf(files, axis(on(2024, 1, 1), 15, 2));
    ASSERT_TRUE(phases);
    EXPECT_DOUBLE_EQ(*phases->unbalances[0], 100.0 / 9);
    EXPECT_DOUBLE_EQ(phases->unbalance.max->value, 50.0);
    EXPECT_EQ(phases->unbalance.max->at, on(2024, 1, 1, 0, 15));
    EXPECT_DOUBLE_EQ(*phases->unbalance.mean, (100.0 / 9 + 50) / 2);
    EXPECT_DOUBLE_EQ(*phases->unbalance.p95, 50.0); // element ceil(1.9)
    EXPECT_DOUBLE_EQ(*phases->unbalance.atPeak, 100.0 / 9);
    EXPECT_EQ(phases->unbalance.counted, 2U);
}

TEST(StudyPhases, LightLoadDoesNotCountAndATenthOfTheHighestDoes) {
    // Means 100, 10, 9.9667 and 0.
    const std::vector<Channel> files = {amps({1000, 300, 299, 0}), amps({1000, 0, 0, 0}),
                                        amps({1000, 0, 0, 0})};
    const auto phases = phasesOf(files, axis(on(2024, 1, 1), 15, 4));
    EXPECT_EQ(phases->unbalance.counted, 2U);
    EXPECT_DOUBLE_EQ(phases->unbalance.max->value, 200.0);
    EXPECT_FALSE(phases->unbalances[2]);
    EXPECT_FALSE(phases->unbalances[3]);
}

TEST(StudyPhases, WithoutAnyLoadThereIsNoUnbalance) {
    const std::vector<Channel> files = {amps({0, 0}), amps({0, 0}), amps({0, 0})};
    const auto phases = phasesOf(files, axis(on(2024, 1, 1), 15, 2));
    EXPECT_EQ(phases->unbalance.counted, 0U);
    EXPECT_FALSE(phases->unbalance.max);
    EXPECT_FALSE(phases->unbalance.mean);
    EXPECT_FALSE(phases->unbalance.p95);
    EXPECT_FALSE(phases->unbalance.atPeak);
    EXPECT_DOUBLE_EQ(phases->neutral->max.value, 0);
}

TEST(StudyPhases, TheNeutralCurrentByHand) {
    // Equal: 0. One phase alone: its own current. 50, 20, 20: 30.
    const std::vector<Channel> files = {amps({400, 0, 500}), amps({400, 700, 200}), amps({400, 0, 200})};
    const auto phases = phasesOf(files, axis(on(2024, 1, 1), 15, 3));
    EXPECT_DOUBLE_EQ(phases->neutrals[0], 0);
    EXPECT_DOUBLE_EQ(phases->neutrals[1], 70.0);
    EXPECT_DOUBLE_EQ(phases->neutrals[2], 30.0);
    EXPECT_DOUBLE_EQ(phases->neutral->max.value, 70.0);
    EXPECT_EQ(phases->neutral->max.at, on(2024, 1, 1, 0, 15));
    EXPECT_NEAR(phases->neutral->mean, 100.0 / 3, 1e-12);
}

TEST(StudyPhases, EqualUnbalancesOfDifferentLoadsAreATie) {
    // 2:1:1 and 4:2:2.
    const std::vector<Channel> files = {amps({20, 40}), amps({10, 20}), amps({10, 20})};
    EXPECT_EQ(phasesOf(files, axis(on(2024, 1, 1), 15, 2))->unbalance.max->at, on(2024, 1, 1, 0, 0));
}

TEST(StudyPhases, VoltsHaveNoNeutralAndTwoFilesNoPhases) {
    const std::vector<Channel> files = {volts({1200}), volts({1210}), volts({1190})};
    const auto phases = phasesOf(files, axis(on(2024, 1, 1), 15, 1));
    EXPECT_FALSE(phases->neutral);
    EXPECT_TRUE(phases->neutrals.empty());
    EXPECT_DOUBLE_EQ(phases->unbalance.max->value, 100.0 * 1 / 120);
    EXPECT_FALSE(phasesOf(std::span(files).first(2), axis(on(2024, 1, 1), 15, 1)));
}

} // namespace
} // namespace tally::study
