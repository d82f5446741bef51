// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/MeteringText.h"

#include "ExportFixture.h"
#include "core/Fault.h"

namespace tally {
namespace {

using testing::linesOf;

const std::string padding(157, ' ');

std::string oneHour(std::vector<float> kilowatts, float powerFactor, ReadingTime end) {
    const std::string text = meteringText(identifierField("ABC"), kilowatts, {0, 1, end}, powerFactor);
    const auto lines = linesOf(text);
    EXPECT_EQ(lines.size(), 2U);
    return lines.at(1);
}

const ReadingTime twoOClock = toReadingTime({2024, 3, 15, 14, 0});

TEST(MeteringText, TheHeaderLineQuotesItsItemsAndEndsInBlanks) {
    const std::string text = meteringText(identifierField("ABC"), {}, {}, 1.0F);
    EXPECT_EQ(text, "\"RECORDER ID\",\" DATE\",\" HOUR\",\" IN\",\" UN\",\"     KW\",\"   KVAR\",\"       \","
                    "\"       \"" +
                        padding + "\r\n");
}

TEST(MeteringText, TheWorkedLine) {
    EXPECT_EQ(oneHour({120, 120.5F, 121, 120.1F}, 1.0F, twoOClock),
              "\"ABC           \",240315,1400,60,\"   KW\",       120,         0,         120,         0" +
                  padding);
}

TEST(MeteringText, APowerFactorOfEightTenthsGivesOneHundredTwentyFiveAndSeventyFive) {
    EXPECT_EQ(oneHour({100, 100, 100, 100}, 0.8F, twoOClock),
              "\"ABC           \",240315,1400,60,\"   KW\",       100,        75,         125,         0" +
                  padding);
}

TEST(MeteringText, TheHourIsTheMeanOfItsFourValuesHalvesRoundedUp) {
    EXPECT_EQ(oneHour({1, 2, 3, 4}, 1.0F, twoOClock).substr(40, 11), "         3,");
    EXPECT_EQ(oneHour({1, 2, 3, 3}, 1.0F, twoOClock).substr(40, 11), "         2,");
}

TEST(MeteringText, ColumnsOfKwAndKvarAreElevenWideKvaIsNotCut) {
    EXPECT_EQ(
        oneHour({12345678, 12345678, 12345678, 12345678}, 1.0F, twoOClock),
        "\"ABC           \",240315,1400,60,\"   KW\",  12345678,         0,         12345678,         0" +
            padding);
}

TEST(MeteringText, NegativePowerKeepsItsSign) {
    EXPECT_EQ(oneHour({-12, -12, -12, -12}, 1.0F, twoOClock).substr(40),
              "       -12,         0,         -12,         0" + padding);
}

TEST(MeteringText, MidnightIsTheTwentyFourthHourOfTheDayThatEnds) {
    const auto dateAndHour = [](const CivilTime& end) {
        return oneHour({1, 1, 1, 1}, 1.0F, toReadingTime(end)).substr(17, 12);
    };
    EXPECT_EQ(dateAndHour({2024, 3, 16, 0, 0}), "240315,2400,");
    EXPECT_EQ(dateAndHour({2024, 5, 1, 0, 0}), "240430,2400,");
    EXPECT_EQ(dateAndHour({2024, 1, 1, 0, 0}), "231231,2400,");
    EXPECT_EQ(dateAndHour({2024, 2, 29, 0, 0}), "240228,2400,");
    EXPECT_EQ(dateAndHour({2024, 3, 1, 0, 0}), "240229,2400,");
    EXPECT_EQ(dateAndHour({2023, 3, 1, 0, 0}), "230228,2400,");
    EXPECT_EQ(dateAndHour({2000, 1, 1, 0, 0}), "991231,2400,");
    EXPECT_EQ(dateAndHour({2024, 3, 16, 1, 0}), "240316,0100,");
    EXPECT_EQ(dateAndHour({2024, 3, 15, 23, 0}), "240315,2300,");
}

TEST(MeteringText, AValueBeyondSinglePrecisionIsAnOverflow) {
    EXPECT_THROW(oneHour({1, 1, 1, 1}, 1e-39F, twoOClock), Fault);
}

TEST(IdentifierField, TwentyCharactersAreCutToTheFirstFourteen) {
    EXPECT_EQ(identifierField("12345678901234567890"), "12345678901234");
}

TEST(IdentifierField, ShortOnesArePaddedWithBlanks) {
    EXPECT_EQ(identifierField("ABC"), "ABC           ");
}

TEST(IdentifierField, AnEmptyOneReadsNotAvailable) {
    EXPECT_EQ(identifierField(""), " N/A          ");
}

TEST(IdentifierField, CharactersCountOnceWhateverTheirBytes) {
    EXPECT_EQ(identifierField("Zürich-Süd-№12"), "Z\xfcrich-S\xfc"
                                                 "d-?12");
    EXPECT_EQ(identifierField("ÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄ"), std::string(14, '\xc4'));
}

struct HoursCase {
    CivilTime start;
    int readings;
    int first;
    int count;
    CivilTime firstEnd;
};

class WholeHoursOf : public ::testing::TestWithParam<HoursCase> {};

TEST_P(WholeHoursOf, BeginAfterAMidnight) {
    const HoursCase& c = GetParam();
    const WholeHours hours = wholeHours(toReadingTime(c.start), c.readings);
    EXPECT_EQ(hours.count, c.count);
    if (c.count > 0) {
        EXPECT_EQ(hours.first, c.first);
        EXPECT_EQ(hours.firstEnd, toReadingTime(c.firstEnd));
    }
}

INSTANTIATE_TEST_SUITE_P(Starts, WholeHoursOf,
                         ::testing::Values(
                             // At midnight itself.
                             HoursCase{{2024, 3, 15, 0, 0}, 96, 0, 24, {2024, 3, 15, 1, 0}},
                             // 14:07 + 40 intervals is 00:07 of the next day.
                             HoursCase{{2024, 3, 15, 14, 7}, 44, 40, 1, {2024, 3, 16, 1, 0}},
                             HoursCase{{2024, 3, 15, 14, 7}, 43, 40, 0, {}},
                             HoursCase{{2024, 3, 15, 14, 7}, 40, 40, 0, {}},
                             HoursCase{{2024, 3, 15, 14, 7}, 3, 40, 0, {}},
                             // In the first quarter after a midnight.
                             HoursCase{{2024, 3, 15, 0, 7}, 4, 0, 1, {2024, 3, 15, 1, 0}},
                             HoursCase{{2024, 3, 15, 0, 14}, 4, 0, 1, {2024, 3, 15, 1, 0}},
                             // Just too late for it: the whole day is skipped.
                             HoursCase{{2024, 3, 15, 0, 15}, 99, 95, 1, {2024, 3, 16, 1, 0}},
                             HoursCase{{2024, 3, 15, 0, 15}, 98, 95, 0, {}},
                             // The last quarter of a day.
                             HoursCase{{2024, 3, 15, 23, 45}, 9, 1, 2, {2024, 3, 16, 1, 0}},
                             HoursCase{{2024, 3, 15, 23, 59}, 9, 1, 2, {2024, 3, 16, 1, 0}},
                             // Over the ends of a year and of a leap February.
                             HoursCase{{2023, 12, 31, 23, 45}, 5, 1, 1, {2024, 1, 1, 1, 0}},
                             HoursCase{{2024, 2, 28, 23, 30}, 6, 2, 1, {2024, 2, 29, 1, 0}},
                             // Readings left over after the last whole hour.
                             HoursCase{{2024, 3, 15, 0, 0}, 7, 0, 1, {2024, 3, 15, 1, 0}},
                             HoursCase{{2024, 3, 15, 0, 0}, 0, 0, 0, {}}));

} // namespace
} // namespace tally
