// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/OptionEntries.h"

#include "Some.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

std::string refusalOf(const OptionEntries& entries) {
    const auto options = optionsOf(entries);
    return options ? std::string() : options.error().subject + ": " + options.error().text;
}

TEST(StudyOptionEntries, WhatIsNotTypedIsAsUsual) {
    const StudyOptions options = *optionsOf({});
    EXPECT_EQ(options.window, 15);
    EXPECT_FALSE(options.high);
    EXPECT_FALSE(options.capacity);
    EXPECT_FALSE(options.power);
}

TEST(StudyOptionEntries, EntriesAreRead) {
    const StudyOptions options = *optionsOf({.window = "30",
                                             .high = "12.5",
                                             .low = "-3",
                                             .rating = "400",
                                             .add = "25",
                                             .volts = "13,800",
                                             .pf = "0.95",
                                             .holidays = {"2024-12-25", "2024-12-26"}});
    EXPECT_EQ(options.window, 30);
    EXPECT_EQ(options.high->tenthsDown, 125);
    EXPECT_EQ(options.low->tenthsUp, -30);
    EXPECT_EQ(options.capacity->rating, 400);
    EXPECT_EQ(options.capacity->add, 25);
    EXPECT_EQ(options.capacity->factor, 1.25);
    EXPECT_EQ(options.power->volts, 13800);
    EXPECT_EQ(options.power->factor, 0.95);
    EXPECT_EQ(options.holidays.size(), 2U);
}

TEST(StudyOptionEntries, VoltsAreGroupedByThousandsOnly) {
    EXPECT_EQ(optionsOf({.volts = "1,138,000.5"})->power->volts, 1138000.5);
    for (const char* volts : {"1,38", ",138", "13,8000", "13800,"})
        EXPECT_FALSE(optionsOf({.volts = volts})) << volts;
}

TEST(StudyOptionEntries, TheFirstEntryThatMakesNoSenseIsNamed) {
    EXPECT_EQ(refusalOf({.window = "25"}), "window: '25' is none of 5, 10, 15, 20, 30 and 60 minutes");
    EXPECT_EQ(refusalOf({.high = ""}), "high: '' is no plain number");
    EXPECT_EQ(refusalOf({.high = "5", .low = "5.0"}), "high: '5' is not above the low limit");
    EXPECT_EQ(refusalOf({.rating = "-1"}), "rating: '-1' is not above 0");
    EXPECT_EQ(refusalOf({.factor = "2"}), "factor: '2' needs a rating");
    EXPECT_EQ(refusalOf({.pf = "1"}), "pf: '1' needs a voltage");
    EXPECT_EQ(refusalOf({.holidays = {"2023-02-29"}}),
              "holiday: '2023-02-29' is no date; write it as YYYY-MM-DD");
}

} // namespace
} // namespace tally::study
