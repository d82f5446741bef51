// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Flags.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;
using testing::axis;
using testing::on;

// Loads that change by 0.1 A from reading to reading.
std::vector<std::int32_t> restless(std::size_t count) {
    std::vector<std::int32_t> loads;
    for (std::size_t i = 0; i < count; ++i)
        loads.push_back(100 + static_cast<std::int32_t>(i % 2));
    return loads;
}

std::vector<Flag> flagsOfOne(const std::vector<std::int32_t>& loads, int interval = 15) {
    const std::vector<Channel> files = {amps(loads)};
    return flagsOf(files, axis(on(2024, 3, 4), interval, loads.size()));
}

TEST(StudyFlags, SixHoursOfOneValueAreFlat) {
    std::vector<std::int32_t> loads = restless(50);
    std::fill_n(loads.begin() + 10, 24, 55);
    const auto flags = flagsOfOne(loads);
    ASSERT_EQ(flags.size(), 1U);
    EXPECT_EQ(flags[0].kind, FlagKind::flat);
    EXPECT_EQ(flags[0].start, on(2024, 3, 4, 2, 30));
    EXPECT_EQ(flags[0].end, on(2024, 3, 4, 8, 30));
    EXPECT_EQ(flags[0].readings, 24U);
    EXPECT_DOUBLE_EQ(flags[0].value, 5.5);
    std::fill_n(loads.begin() + 33, 1, 56);
    EXPECT_TRUE(flagsOfOne(loads).empty());
}

TEST(StudyFlags, TwoReadingsOfZeroAreAnOutageHoweverLong) {
    std::vector<std::int32_t> loads = restless(60);
    std::fill_n(loads.begin() + 20, 30, 0);
    const auto flags = flagsOfOne(loads);
    ASSERT_EQ(flags.size(), 1U);
    EXPECT_EQ(flags[0].kind, FlagKind::zero);
    EXPECT_EQ(flags[0].readings, 30U);
    EXPECT_DOUBLE_EQ(flags[0].value, 0);
}

TEST(StudyFlags, AReadingThatStandsOutOfBothNeighboursIsASpike) {
    std::vector<std::int32_t> loads = restless(20);
    loads[7] = 900;
    const auto flags = flagsOfOne(loads);
    ASSERT_EQ(flags.size(), 1U);
    EXPECT_EQ(flags[0].kind, FlagKind::spike);
    EXPECT_EQ(flags[0].start, on(2024, 3, 4, 1, 45));
    EXPECT_EQ(flags[0].end, on(2024, 3, 4, 2, 0));
    EXPECT_EQ(flags[0].readings, 1U);
    EXPECT_DOUBLE_EQ(flags[0].value, 90.0);
    loads[7] = 0;
    EXPECT_EQ(flagsOfOne(loads).at(0).kind, FlagKind::spike); // downwards, and once 0 is no outage
}

TEST(StudyFlags, ASpikePassesAFifthOfTheHighestReading) {
    // Highest 1000: 200 is a fifth.
    std::vector<std::int32_t> loads = {1000, 1000, 1000, 800, 1000, 1000, 1000};
    EXPECT_TRUE(flagsOfOne(loads).empty());
    loads[3] = 799;
    EXPECT_EQ(flagsOfOne(loads).size(), 1U);
}

TEST(StudyFlags, ASpikePassesFiveMedianChanges) {
    // Changes 10 10 50 50 10 10 10: median 10; five times that are 50.
    EXPECT_TRUE(flagsOfOne({10, 20, 10, 60, 10, 20, 10, 20}).empty());
    EXPECT_EQ(flagsOfOne({10, 20, 10, 61, 10, 20, 10, 20}).size(), 1U);
}

TEST(StudyFlags, TheEndsHaveNoTwoNeighbours) {
    EXPECT_TRUE(flagsOfOne({900, 10, 10, 10, 900}).empty());
    EXPECT_TRUE(flagsOfOne({900, 10}).empty());
    EXPECT_TRUE(flagsOfOne({900}).empty());
}

TEST(StudyFlags, AreOrderedByStartThenKindThenFile) {
    std::vector<std::int32_t> spike = restless(30);
    spike[5] = 900;
    std::vector<std::int32_t> zero = restless(30);
    zero[5] = zero[6] = 0;
    std::vector<std::int32_t> early = restless(30);
    early[2] = early[3] = 0;
    const std::vector<Channel> files = {amps(zero), amps(spike), amps(early)};
    const auto flags = flagsOf(files, axis(on(2024, 3, 4), 15, 30));
    ASSERT_EQ(flags.size(), 3U);
    EXPECT_EQ(flags[0].file, 2U);
    EXPECT_EQ(flags[1].kind, FlagKind::spike);
    EXPECT_EQ(flags[2].kind, FlagKind::zero);
    EXPECT_EQ(flags[2].file, 0U);
}

} // namespace
} // namespace tally::study
