// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Calendar.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

constexpr int perDay = 96; // quarter hours

// A recording of quarter hours that starts at a time.
FileFacts file(int count, const CivilTime& start, char mode = 'a') {
    FileFacts info;
    info.modeLetter = mode;
    info.count = count;
    info.start = toReadingTime(start);
    return info;
}

class CalendarTest : public ::testing::Test {
protected:
    // Friday 2024-03-15 12:00, six days: to Thursday the 21st 11:45.
    FileFacts info = file(6 * perDay, {2024, 3, 15, 12, 0});
    Range whole{0, 6 * perDay - 1};

    std::optional<Range> beside(const Range& shown, Period period, int direction) const {
        return periodBeside(info, whole, shown, period, direction);
    }
};

TEST_F(CalendarTest, FromTheWholeNextIsTheFirstDayAndPreviousTheLast) {
    EXPECT_EQ(beside(whole, Period::day, 1), (Range{0, 47}));     // 12:00 to midnight
    EXPECT_EQ(beside(whole, Period::day, -1), (Range{528, 575})); // from midnight to 11:45
}

TEST_F(CalendarTest, FromADayItGoesToTheDaysBesideIt) {
    EXPECT_EQ(beside({0, 47}, Period::day, 1), (Range{48, 143}));
    EXPECT_EQ(beside({48, 143}, Period::day, -1), (Range{0, 47}));
    EXPECT_EQ(beside({50, 60}, Period::day, 1), (Range{144, 239})) << "a part of a day counts as that day";
}

TEST_F(CalendarTest, BeyondTheEndsThereIsNone) {
    EXPECT_EQ(beside({0, 47}, Period::day, -1), std::nullopt);
    EXPECT_EQ(beside({528, 575}, Period::day, 1), std::nullopt);
    EXPECT_EQ(beside(whole, Period::month, 1), std::nullopt);
}

// Monday the 18th begins 2 days and 12 hours after the first reading.
TEST_F(CalendarTest, AWeekBeginsOnMonday) {
    EXPECT_EQ(beside(whole, Period::week, 1), (Range{0, 239}));
    EXPECT_EQ(beside({0, 239}, Period::week, 1), (Range{240, 575}));
    EXPECT_EQ(beside({240, 575}, Period::week, -1), (Range{0, 239}));
}

TEST(Calendar, MonthsEndWhereTheyDoAlsoInLeapYears) {
    // Midnight of February the 28th in a leap year, three days.
    const FileFacts info = file(3 * perDay, {2024, 2, 28, 0, 0});
    const Range whole{0, 3 * perDay - 1};
    EXPECT_EQ(periodBeside(info, whole, whole, Period::month, 1), (Range{0, 2 * perDay - 1}));
    EXPECT_EQ(periodBeside(info, whole, {0, 2 * perDay - 1}, Period::month, 1),
              (Range{2 * perDay, 3 * perDay - 1}));
    EXPECT_EQ(periodBeside(info, whole, {200, 210}, Period::month, -1), (Range{0, 2 * perDay - 1}));
}

TEST(Calendar, TriplesStayWhole) {
    // Minutes, from 23:58; the odd reading at the oldest end belongs to no triple.
    FileFacts info = file(13, {2024, 3, 15, 23, 57}, 'i');
    const Range whole{1, 12}; // triples of 23:58, 23:59, 0:00 and 0:01
    EXPECT_EQ(timeOf(info, 1), toReadingTime({2024, 3, 15, 23, 58}));
    EXPECT_EQ(periodBeside(info, whole, whole, Period::day, 1), (Range{1, 6}));
    EXPECT_EQ(periodBeside(info, whole, whole, Period::day, -1), (Range{7, 12}));
}

TEST(Calendar, ADayThatNoReadingBeginsInIsPassedByAtItsEdges) {
    const FileFacts info = file(2, {2024, 3, 15, 23, 50}); // 23:50 and 0:05
    EXPECT_EQ(periodBeside(info, {0, 1}, {0, 0}, Period::day, 1), (Range{1, 1}));
}

} // namespace
} // namespace tally
