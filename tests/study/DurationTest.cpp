// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Duration.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::amps;

TEST(StudyDuration, TheCurveFallsFromTheHighestToTheLowestLoad) {
    // High to low: 50 40 30 20 10.
    const Duration curve = durationOf(amps({200, 500, 100, 400, 300}));
    EXPECT_DOUBLE_EQ(curve[0], 50.0);
    EXPECT_DOUBLE_EQ(curve[20], 50.0); // element ceil(1.0)
    EXPECT_DOUBLE_EQ(curve[21], 40.0); // element ceil(1.05)
    EXPECT_DOUBLE_EQ(curve[50], 30.0); // element ceil(2.5)
    EXPECT_DOUBLE_EQ(curve[60], 30.0);
    EXPECT_DOUBLE_EQ(curve[61], 20.0);
    EXPECT_DOUBLE_EQ(curve[100], 10.0);
}

TEST(StudyDuration, OneReadingIsReachedAllTheTime) {
    const Duration curve = durationOf(amps({55}));
    EXPECT_DOUBLE_EQ(curve[0], 5.5);
    EXPECT_DOUBLE_EQ(curve[100], 5.5);
}

TEST(StudyDuration, TiesFillTheirShare) {
    const Duration curve = durationOf(amps({10, 10, 10, 20}));
    EXPECT_DOUBLE_EQ(curve[25], 2.0);
    EXPECT_DOUBLE_EQ(curve[26], 1.0);
}

} // namespace
} // namespace tally::study
