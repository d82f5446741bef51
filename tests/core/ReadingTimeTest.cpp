// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ReadingTime.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(ReadingTime, TwoDigitYearsSplitAtThirty) {
    EXPECT_EQ(toCivil(*parseHeaderTime("01-01-00 00:00")).year, 2000);
    EXPECT_EQ(toCivil(*parseHeaderTime("12-31-29 23:59")).year, 2029);
    EXPECT_EQ(toCivil(*parseHeaderTime("01-01-30 00:00")).year, 1930);
    EXPECT_EQ(toCivil(*parseHeaderTime("12-31-99 23:59")).year, 1999);
}

TEST(ReadingTime, OnlyDatesOfTheCalendarAreTimes) {
    EXPECT_TRUE(parseHeaderTime("02-29-00 10:00"));
    for (const char* text : {"02-29-01 10:00", "00-10-99 10:00", "04-31-99 10:00", "03-00-99 10:00",
                             "03-15-99 24:00", "03-15-99 10:60", "3-15-99 10:30 ", "03-15-99  0:30",
                             "03-15-9910:30", "", "03-15-99 10:300", "aa-bb-cc dd:ee"})
        EXPECT_FALSE(parseHeaderTime(text)) << text;
}

TEST(ReadingTime, TimesComeBack) {
    for (const char* text :
         {"03-15-99 10:07", "12-31-99 23:59", "01-01-00 00:00", "02-29-24 12:00", "01-01-30 00:00"})
        EXPECT_EQ(headerTime(*parseHeaderTime(text)), text);
}

TEST(ReadingTime, MinutesRunAcrossDaysAndYearsWithoutDaylightSaving) {
    EXPECT_EQ(headerTime(*parseHeaderTime("12-31-99 23:50") + 15), "01-01-00 00:05");
    EXPECT_EQ(headerTime(*parseHeaderTime("03-01-00 00:00") - 1), "02-29-00 23:59");
    EXPECT_EQ(headerTime(*parseHeaderTime("03-30-24 12:00") + 24 * 60), "03-31-24 12:00");
    EXPECT_EQ(headerTime(*parseHeaderTime("01-01-30 00:00") - 1), "12-31-29 23:59");
}

TEST(ReadingTime, FormsOnScreenAndInReports) {
    const ReadingTime time = *parseHeaderTime("05-03-07 09:05");
    EXPECT_EQ(screenTime(time), "09:05  May 03, 07");
    EXPECT_EQ(formatTime(time, "%b %d, %y %H:%M"), "May 03, 07 09:05");
    EXPECT_EQ(formatTime(time, "%Y 100%"), "2007 100%");
}

} // namespace
} // namespace tally
