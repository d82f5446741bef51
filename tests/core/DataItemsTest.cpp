// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataItems.h"

#include "support/DataTexts.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using Readings = std::vector<std::int16_t>;

Readings high(const std::string& text) {
    return readDataItems(text, false).readings;
}

Readings low(const std::string& text) {
    return readDataItems(text, true).readings;
}

// Oldest first: the text lists the newest first.
TEST(DataItems, TheOldestReadingIsTheLastOfTheText) {
    EXPECT_EQ(high("  30  20  10\x1a"), (Readings{100, 200, 300}));
}

TEST(DataItems, WhiteSpaceAndCommasSeparate) {
    EXPECT_EQ(high("1 2\t3\r\n4\n\r5,6,,7 , 8\v9\f10\x1a"),
              (Readings{100, 90, 80, 70, 60, 50, 40, 30, 20, 10}));
}

TEST(DataItems, EndsAtTheTerminatorOrAtTheEndOfTheText) {
    EXPECT_EQ(high("1 2"), (Readings{20, 10}));
    EXPECT_EQ(high("1 2\x1a"), (Readings{20, 10}));
    EXPECT_TRUE(readDataItems("1 2\x1a", false).ended);
    EXPECT_FALSE(readDataItems("1 2", false).ended);
    EXPECT_TRUE(readDataItems("1 2\x1a", false).complete);
    EXPECT_FALSE(readDataItems("1 2", false).complete);
}

TEST(DataItems, ATerminatorInTheMiddleEndsTheReadingAndIsCounted) {
    const DataItems items = readDataItems("1 2\x1a 3 4\x1a\"\r\n", false);
    EXPECT_EQ(items.readings, (Readings{20, 10}));
    EXPECT_EQ(items.unreadable, 1);
    EXPECT_EQ(readDataItems("1 2\x1a\"\r\n", false).unreadable, 0);
    EXPECT_EQ(readDataItems("1 2\x1a\x1a\r\n", false).unreadable, 0);
}

TEST(DataItems, TheClosingQuoteIsNoItemWhereTheTerminatorIsMissing) {
    const DataItems items = readDataItems("  12  13\"\r\n", false);
    EXPECT_EQ(items.readings, (Readings{130, 120}));
    EXPECT_EQ(items.unreadable, 0);
}

TEST(DataItems, DigitsThatTouchAreCutIntoFoursFromTheRightInAHighFile) {
    EXPECT_EQ(high("9991234 5"), (Readings{50, 12340, 9990}));
    EXPECT_EQ(high("123412341234"), (Readings{12340, 12340, 12340}));
    EXPECT_EQ(high("112341234"), (Readings{12340, 12340, 10}));
    EXPECT_EQ(high("1234"), (Readings{12340}));
}

TEST(DataItems, NegativeNumbersThatTouchAreCutInAHighFile) {
    EXPECT_EQ(high("12-100 5"), (Readings{50, -1000, 120}));
    EXPECT_EQ(high("-100-999-1000-3276"), (Readings{-32760, -10000, -9990, -1000}));
    EXPECT_EQ(high("-51234"), (Readings{12340, -50})) << "the first one may be short";
    EXPECT_EQ(high("-10001234-100"), (Readings{-1000, 12340, -10000}));
    EXPECT_EQ(high("-1001234-100"), (Readings{-1000, 12340, -1000}));
    EXPECT_EQ(readDataItems("12-100-3276 7", false).unreadable, 0);
}

// A short number has a blank before it, so it touches nothing.
TEST(DataItems, ANumberThatDoesNotFillItsFieldIsNotCutOff) {
    const DataItems items = readDataItems("12-50 7", false);
    EXPECT_EQ(items.readings, (Readings{70, 120}));
    EXPECT_EQ(items.unreadable, 1);
    EXPECT_FALSE(items.touching);
}

TEST(DataItems, DigitsThatNoSaveWritesAreNotCut) {
    for (const char* run : {"40000", "00000", "100001", "12340123", "-01234", "1234-00001", "99991234-12345"})
        EXPECT_TRUE(readDataItems(run, false).touching) << run;
    EXPECT_EQ(high("01234"), (Readings{12340, 0})) << "a single 0 comes first";
    EXPECT_EQ(high("0123 0007"), (Readings{70, 1230})) << "nothing touches here";
    EXPECT_EQ(high("0123-100"), (Readings{1230})) << "but this is no number";
}

TEST(DataItems, AFullRowIsNoneWhenAFieldBeginsWithZero) {
    const std::string row = "   40000   5   6   7   8   9  10  11  12";
    ASSERT_EQ(row.size(), 40U);
    EXPECT_TRUE(readDataItems(row + "\n\r" + row + "\x1a" + std::string(64, ' '), false).touching);
}

TEST(DataItems, OnlyDigitsAloneAreCutInAHighFile) {
    EXPECT_TRUE(readDataItems("+12345", false).outOfRange);
    const DataItems points = readDataItems("99.9100.1", false);
    EXPECT_EQ(points.readings, (Readings{999}));
    EXPECT_EQ(points.unreadable, 1);
}

TEST(DataItems, NumbersThatTouchAreCutAfterEachDecimalInALowFile) {
    EXPECT_EQ(low("99.9100.1"), (Readings{1001, 999}));
    EXPECT_EQ(low("100.1100.2999.9 1.5"), (Readings{15, 9999, 1002, 1001}));
    EXPECT_EQ(low("12.34"), (Readings{123})) << "one point: not cut";
    EXPECT_TRUE(readDataItems("12345", true).outOfRange) << "no point: not cut";
}

TEST(DataItems, DamageInNumbersThatTouchStaysInItsField) {
    const DataItems noDecimal = readDataItems("100.x100.2", true);
    EXPECT_EQ(noDecimal.readings, (Readings{1002, 1000}));
    EXPECT_EQ(noDecimal.unreadable, 1);
    const DataItems noPoint = readDataItems("99.9100.1100x2", true);
    EXPECT_EQ(noPoint.readings, (Readings{1000, 1001, 999}));
    EXPECT_EQ(noPoint.unreadable, 1);
    const DataItems tail = readDataItems("99.9100.1x 1.0", true);
    EXPECT_EQ(tail.readings, (Readings{10, 1001, 999}));
    EXPECT_EQ(tail.unreadable, 1);
}

TEST(DataItems, AnItemThatIsNoNumberCountsWithItsLeadingNumberOrZero) {
    const DataItems items = readDataItems("12x  ?  7", false);
    EXPECT_EQ(items.readings, (Readings{70, 0, 120}));
    EXPECT_EQ(items.unreadable, 2);
}

TEST(DataItems, AValueBeyondTenthsIsSaid) {
    EXPECT_TRUE(readDataItems("1 3277 1", false).outOfRange);
    EXPECT_TRUE(readDataItems("1.0 3276.8 1.0", true).outOfRange);
    EXPECT_FALSE(readDataItems("1.0 3276.7 1.0", true).outOfRange);
}

TEST(DataItems, FullRowsAndSingleItemsSayTheSame) {
    std::vector<std::string> fields;
    std::string single;
    Readings expected;
    for (int i = 0; i < 237; ++i) {
        const int value = (i * 37) % 1300;
        fields.push_back(std::to_string(value));
        single += std::to_string(value) + " ";
        expected.insert(expected.begin(), static_cast<std::int16_t>(value * 10));
    }
    EXPECT_EQ(high(testing::fieldLines(fields, 4) + "\x1a"), expected);
    EXPECT_EQ(high(single), expected);
}

TEST(DataItems, MoreThanTheMostReadingsKeepTheNewest) {
    std::vector<std::string> fields;
    for (int i = 0; i < 43000; ++i)
        fields.push_back(std::to_string(i % 1000));
    const DataItems items = readDataItems(testing::fieldLines(fields, 4) + "\x1a", false);
    ASSERT_EQ(items.readings.size(), 42966U);
    EXPECT_EQ(items.readings.back(), 0) << "the newest";
    EXPECT_EQ(items.readings.front(), 42965 % 1000 * 10) << "the 42,966th of the text";
    EXPECT_TRUE(items.ended);
}

TEST(DataItems, FullRowsBeyondTheItemsThatAreLookedAtAreLeft) {
    for (const std::size_t count : {43050U, 43060U, 50000U}) {
        const std::vector<std::string> ones(count, "1");
        const std::vector<std::string> tenths(count, "0.1");
        EXPECT_EQ(high(testing::fieldLines(ones, 4) + "\x1a"), Readings(42966, 10)) << count;
        EXPECT_EQ(low(testing::fieldLines(tenths, 5) + "\x1a"), Readings(42966, 1)) << count;
        EXPECT_TRUE(readDataItems(testing::fieldLines(ones, 4), false).ended) << count;
    }
}

TEST(DataItems, FullRowsAreFoundAfterEveryLineEndAndAfterADamagedLine) {
    const std::string row = "   1   2   3   4   5   6   7   8   9  10";
    Readings oneRow = {100, 90, 80, 70, 60, 50, 40, 30, 20, 10};
    for (const std::string lineEnd : {"\n\r", "\r\n", "\n", "\r", "\r\n\n\n"}) {
        std::string text = " x 5";
        Readings expected = {50, 0};
        for (int i = 0; i < 4; ++i) {
            text += lineEnd + row;
            expected.insert(expected.begin(), oneRow.begin(), oneRow.end());
        }
        EXPECT_EQ(high(text + "\x1a"), expected);
        EXPECT_EQ(high(text), expected) << "the last row stands at the end of the text";
    }
}

TEST(DataItems, ReadingStopsAfterTheItemsThatAreLookedAt) {
    std::string text;
    for (int i = 0; i < 43050; ++i)
        text += "1 ";
    EXPECT_TRUE(readDataItems(text + "? 99999999", false).ended);
    EXPECT_EQ(readDataItems(text + "? 99999999", false).unreadable, 0);
    EXPECT_EQ(readDataItems(text + "? 99999999", false).readings.size(), 42966U);
}

TEST(DataItems, ALineOfTenMillionDigitsIsReadWithoutEnd) {
    EXPECT_EQ(high(std::string(10000000, '1')).size(), 42966U);
    EXPECT_TRUE(readDataItems(std::string(10000000, '9'), true).outOfRange);
    std::string points;
    while (points.size() < 10000000)
        points += "1.1";
    EXPECT_EQ(low(points).size(), 42966U);
}

TEST(DataItems, NoItemsAreNoReadings) {
    EXPECT_TRUE(high("").empty());
    EXPECT_TRUE(high(" \r\n,\x1a").empty());
}

} // namespace
} // namespace tally
