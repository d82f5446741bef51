// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Day.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

TEST(Day, CountsDatesFrom1970) {
    EXPECT_EQ(dayOf({0}), 0);
    EXPECT_EQ(dayOf({1439}), 0);
    EXPECT_EQ(dayOf({1440}), 1);
    EXPECT_EQ(dayOf({-1}), -1);
    EXPECT_EQ(minuteOfDay({-1}), 1439);
    EXPECT_EQ(minuteOfDay({1440 + 75}), 75);
}

TEST(Day, ReadsOnlyWholeDates) {
    EXPECT_EQ(parseDay("1970-01-02"), 1);
    EXPECT_EQ(parseDay("2000-02-29"), 11016); // 30 years of 365 days, 7 leap days, 31 + 28 days
    for (const char* text :
         {"", "2001-02-29", "2001-2-3", "01-02-2003", "2001-13-01", "2001-00-10", "2001-01-32", "2001-01-01 ",
          "20010101", "2001/01/01", "abcd-ef-gh", "-001-01-01"})
        EXPECT_EQ(parseDay(text), std::nullopt) << text;
}

TEST(Day, WritesDatesAndTimes) {
    EXPECT_EQ(dayText(11016), "2000-02-29");
    EXPECT_EQ(timeText(toReadingTime({1999, 3, 15, 4, 5})), "1999-03-15T04:05");
    EXPECT_EQ(yearOf(11016), 2000);
}

} // namespace
} // namespace tally::archive
