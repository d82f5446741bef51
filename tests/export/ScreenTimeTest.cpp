// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ScreenTime.h"

#include "core/Fault.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(ScreenTime, ReadsBackEveryTimeOfAYear) {
    const ReadingTime start = toReadingTime({2024, 1, 1, 0, 0});
    for (int i = 0; i < 366 * 96; ++i) {
        const ReadingTime time = start + i * 15 + i % 15;
        ASSERT_EQ(parseScreenTime(screenTime(time)), time);
    }
}

TEST(ScreenTime, WhatFollowsDoesNotMatter) {
    EXPECT_EQ(parseScreenTime("14:05  Mar 15, 24      000.1"), toReadingTime({2024, 3, 15, 14, 5}));
}

TEST(ScreenTime, YearsFromThirtyOnAreOfTheLastCentury) {
    EXPECT_EQ(parseScreenTime("14:05  Mar 15, 29"), toReadingTime({2029, 3, 15, 14, 5}));
    EXPECT_EQ(parseScreenTime("14:05  Mar 15, 30"), toReadingTime({1930, 3, 15, 14, 5}));
}

TEST(ScreenTime, WhatIsNoDateIsATypeMismatch) {
    for (const char* text :
         {"14:05  anM 15, 24 ", "14:05  Mrz 15, 24 ", "24:00  Mar 15, 24 ", "14:05  Feb 30, 24 ",
          "14:05  Feb 29, 23 ", "14.05  Mar 15, 24 ", "14:05 Mar 15,  24 ", "                  ",
          "14:05  Mar 15; 24 ", "x4:05  Mar 15, 24 ", "14:05  Mar-15, 24 "}) {
        try {
            parseScreenTime(text);
            FAIL() << text;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 13) << text;
        }
    }
}

} // namespace
} // namespace tally
