// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Ranks.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

TEST(StudyRanks, ThePercentileRankRoundsUpAndIsAtLeastOne) {
    EXPECT_EQ(percentileRank(0, 10), 1U);
    EXPECT_EQ(percentileRank(10, 10), 1U);
    EXPECT_EQ(percentileRank(11, 10), 2U);
    EXPECT_EQ(percentileRank(50, 4), 2U);
    EXPECT_EQ(percentileRank(50, 5), 3U);
    EXPECT_EQ(percentileRank(90, 7), 7U); // 6.3
    EXPECT_EQ(percentileRank(100, 7), 7U);
    EXPECT_EQ(percentileRank(95, 1), 1U);
}

TEST(StudyRanks, ThePercentileIsOneOfTheValues) {
    std::vector<std::int32_t> values = {30, 10, 40, 20};
    EXPECT_EQ(percentile(std::span(values), 50), 20);
    EXPECT_EQ(percentile(std::span(values), 10), 10);
    EXPECT_EQ(percentile(std::span(values), 90), 40);
}

TEST(StudyRanks, ElementsAreCountedThroughTiesAndGaps) {
    const std::vector<std::int32_t> loads = {5, -3, 5, 900, 5};
    const std::vector<std::size_t> ranks = {1, 2, 4, 5, 5};
    EXPECT_EQ(elementsAt(loads, ranks), (std::vector<std::int32_t>{-3, 5, 5, 900, 900}));
    EXPECT_TRUE(elementsAt({}, ranks).empty());
}

} // namespace
} // namespace tally::study
