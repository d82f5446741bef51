// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/TableText.h"

#include "core/Numbers.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

constexpr TableLayout two = {"heading", 2, "000.0", " 0000"};

std::string tableOf(const std::vector<std::int16_t>& tenths, bool whole, const TableTimes& times) {
    std::string table = "what was there before";
    tableText(table, tenths, two, whole, times);
    return table;
}

TEST(TableText, NothingGivesAnEmptyTable) {
    EXPECT_EQ(tableOf({}, false, {toReadingTime({2024, 3, 15, 14, 0}), 30}), "");
}

TEST(TableText, TimeStandsInTwentyTwoCharactersAndABlank) {
    EXPECT_EQ(tableOf({1, 2, 3}, false, {toReadingTime({2024, 3, 15, 14, 5}), 30}),
              "14:05  Mar 15, 24      000.1  000.2  \r\n"
              "14:35  Mar 15, 24      000.3  \r\n");
}

TEST(TableText, WholeNumbersUseTheWholeFormat) {
    EXPECT_EQ(tableOf({1234}, true, {toReadingTime({2024, 3, 15, 14, 5}), 30}),
              "14:05  Mar 15, 24       0123  \r\n");
}

TEST(TableText, TimesRunOnOverMidnightAndTheTurnOfTheYear) {
    EXPECT_EQ(tableOf({0, 0, 0, 0, 0}, false, {toReadingTime({2023, 12, 31, 23, 0}), 45}),
              "23:00  Dec 31, 23      000.0  000.0  \r\n"
              "23:45  Dec 31, 23      000.0  000.0  \r\n"
              "00:30  Jan 01, 24      000.0  \r\n");
}

TEST(TableText, StepsOfSeveralDaysAreDatedRight) {
    EXPECT_EQ(tableOf({0, 0, 0, 0, 0}, false, {toReadingTime({2024, 2, 28, 12, 0}), 1440 + 60}),
              "12:00  Feb 28, 24      000.0  000.0  \r\n"
              "13:00  Feb 29, 24      000.0  000.0  \r\n"
              "14:00  Mar 01, 24      000.0  \r\n");
}

// Longer than the working buffer many times over, put together here one piece after the other.
TEST(TableText, LongTableEqualsItsLinesPutTogether) {
    const auto tenths = testing::ramp(20001);
    const ReadingTime start = toReadingTime({2024, 1, 1, 0, 7});
    std::string expected;
    for (std::size_t i = 0; i < tenths.size(); i += 2) {
        expected += screenTime(start + static_cast<std::int64_t>(i / 2) * 35) + "      ";
        for (std::size_t j = i; j < std::min(i + 2, tenths.size()); ++j)
            expected += Format(tenths[j] / 10.0, "000.0") + "  ";
        expected += "\r\n";
    }
    EXPECT_EQ(tableOf(tenths, false, {start, 35}), expected);
}

} // namespace
} // namespace tally
