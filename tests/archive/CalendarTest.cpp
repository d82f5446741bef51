// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Calendar.h"

#include "archive/Day.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

Coverage covered(const std::vector<std::pair<const char*, const char*>>& spans) {
    Coverage coverage;
    for (const auto& [first, last] : spans)
        coverage.covered.push_back({*parseDay(first), *parseDay(last)});
    return coverage;
}

TEST(Calendar, MarksTheDaysOfEveryYear) {
    const auto years = calendarOf(covered({{"2007-12-31", "2008-01-02"}, {"2010-02-28", "2010-03-01"}}));
    ASSERT_EQ(years.size(), 4U);
    EXPECT_EQ(years[0].year, 2007);
    EXPECT_EQ(years[0].covered, 1);
    EXPECT_TRUE(years[0].days.at(364));
    EXPECT_EQ(years[1].days.size(), 366U);
    EXPECT_EQ(years[1].covered, 2);
    EXPECT_FALSE(years[1].days.at(2));
    EXPECT_EQ(years[2].covered, 0); // 2009 stands between them
    EXPECT_EQ(years[3].covered, 2);
    EXPECT_EQ(dayWords(years[3], 58), "2010-02-28: readings");
    EXPECT_EQ(dayWords(years[3], 0), "2010-01-01: no reading");
}

TEST(Calendar, KnowsWhereMonthsBegin) {
    const auto years = calendarOf(covered({{"2008-05-01", "2009-05-01"}}));
    EXPECT_EQ(monthStarts(years[0]).at(2), 60U); // 31 + 29
    EXPECT_EQ(monthStarts(years[1]).at(2), 59U);
    EXPECT_EQ(monthStarts(years[1]).at(11), 334U);
}

TEST(Calendar, IsEmptyWithoutReadings) {
    EXPECT_TRUE(calendarOf({}).empty());
}

} // namespace
} // namespace tally::archive
