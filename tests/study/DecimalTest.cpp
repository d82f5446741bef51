// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Decimal.h"

#include <gtest/gtest.h>

namespace tally::study {
namespace {

TEST(StudyDecimal, TenthsComeFromTheDigits) {
    // 12.3 is no sum of powers of two: 12.3 * 10 as numbers is not 123 on every machine.
    EXPECT_EQ(decimalOf("12.3")->tenthsDown, 123);
    EXPECT_EQ(decimalOf("12.3")->tenthsUp, 123);
    EXPECT_EQ(decimalOf("12.30")->tenthsUp, 123);
    EXPECT_EQ(decimalOf("12.31")->tenthsDown, 123);
    EXPECT_EQ(decimalOf("12.31")->tenthsUp, 124);
    EXPECT_EQ(decimalOf("7")->tenthsDown, 70);
    EXPECT_DOUBLE_EQ(decimalOf("12.31")->value, 12.31);
}

TEST(StudyDecimal, BelowZeroDownIsFurtherAway) {
    EXPECT_EQ(decimalOf("-0.25")->tenthsDown, -3);
    EXPECT_EQ(decimalOf("-0.25")->tenthsUp, -2);
    EXPECT_DOUBLE_EQ(decimalOf("-0.25")->value, -0.25);
}

TEST(StudyDecimal, OnlyPlainNumbersAreTaken) {
    for (const char* text :
         {"", " ", "nan", "inf", "1e3", "0x10", "12a", "1,5", "--1", "-", "+", ".", "1.2.3", " 1", "1 ", "١"})
        EXPECT_FALSE(decimalOf(text)) << '"' << text << '"';
    for (const char* text : {"0", "5.", ".5", "+5", "-5", "0012"})
        EXPECT_TRUE(decimalOf(text)) << text;
}

TEST(StudyDecimal, ANumberBeyondEveryReadingIsBeyondEveryReading) {
    EXPECT_GT(decimalOf("123456789012345678901234567890")->tenthsDown, 1000000);
    EXPECT_LT(decimalOf("-123456789012345678901234567890")->tenthsUp, -1000000);
    EXPECT_FALSE(decimalOf(std::string(400, '9')));
}

} // namespace
} // namespace tally::study
