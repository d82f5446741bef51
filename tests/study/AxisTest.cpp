// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Axis.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using testing::on;

TEST(StudyAxis, TheDayChangesAtMidnightAlsoBefore1970) {
    EXPECT_EQ(dayOf(on(1970, 1, 1, 0, 0)), 0);
    EXPECT_EQ(dayOf(on(1970, 1, 1, 23, 59)), 0);
    EXPECT_EQ(dayOf(on(1970, 1, 2, 0, 0)), 1);
    EXPECT_EQ(dayOf(on(1969, 12, 31, 23, 59)), -1);
    EXPECT_EQ(dayOf(on(1969, 12, 31, 0, 0)), -1);
    EXPECT_EQ(dayOf(on(1969, 12, 30, 23, 59)), -2);
}

TEST(StudyAxis, TheMinuteOfTheDayRunsFrom0To1439) {
    EXPECT_EQ(minuteOfDay(on(2024, 3, 15)), 0);
    EXPECT_EQ(minuteOfDay(on(2024, 3, 15, 13, 7)), 787);
    EXPECT_EQ(minuteOfDay(on(1969, 12, 31, 23, 59)), 1439);
}

TEST(StudyAxis, TheEndOfAPointIsTheBeginningOfTheNext) {
    const Axis axis = {on(2024, 2, 28, 23, 45), 15, 3};
    EXPECT_EQ(axis.at(1), on(2024, 2, 29, 0, 0));
    EXPECT_EQ(axis.end(), on(2024, 2, 29, 0, 30));
    EXPECT_EQ(axis.minutes(3), 45);
}

} // namespace
} // namespace tally::study
