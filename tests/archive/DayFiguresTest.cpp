// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/DayFigures.h"
#include "archive/Day.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

Load load(const CivilTime& start, int interval, std::vector<std::int16_t> average) {
    return {toReadingTime(start), interval, std::move(average), {}, {}};
}

TEST(DayFigures, KeepsEachDayByItself) {
    // 23:30, 23:45 | 00:00, 00:15
    const DayFigures figures = dayFiguresOf(load({2024, 5, 1, 23, 30}, 15, {10, 30, 50, 20}));
    ASSERT_EQ(figures.days.size(), 2U);
    EXPECT_EQ(dayText(figures.firstDay), "2024-05-01");
    const Figures& first = figures.days[0];
    EXPECT_EQ(first.points, 2);
    EXPECT_EQ(first.total, 40);
    EXPECT_EQ(first.highest, 30);
    EXPECT_EQ(timeText(first.highestAt), "2024-05-01T23:45");
    EXPECT_EQ(first.blocks, 2);
    EXPECT_EQ(figures.days[1].highest, 50);
    EXPECT_EQ(timeText(figures.days[1].highestAt), "2024-05-02T00:00");
}

TEST(DayFigures, CountsOnlyCompleteDemandWindows) {
    // 10:05, 10:10 | 10:15 10:20 10:25 | 10:30: one whole window of three readings.
    const Figures whole = dayFiguresOf(load({2024, 5, 1, 10, 5}, 5, {90, 90, 10, 20, 30, 99})).whole();
    EXPECT_EQ(whole.blocks, 1);
    EXPECT_EQ(whole.blockTotal, 60);
    EXPECT_EQ(whole.blockHighest, 60);
    EXPECT_EQ(whole.highest, 99);
}

TEST(DayFigures, KeepsTheEarliestOfEqualPeaks) {
    const Figures whole = dayFiguresOf(load({2024, 5, 1, 23, 45}, 15, {70, 70, 60, 70})).whole();
    EXPECT_EQ(timeText(whole.highestAt), "2024-05-01T23:45");
}

TEST(DayFigures, TakesTheHighestFromTheMaximaAndTheMeanFromTheAverages) {
    Load triples = load({2024, 5, 1, 10, 0}, 15, {10, 20});
    triples.maximum = {40, 30};
    triples.minimum = {1, 2};
    const Figures whole = dayFiguresOf(triples).whole();
    EXPECT_EQ(whole.highest, 40);
    EXPECT_EQ(whole.total, 30);
    EXPECT_EQ(whole.blockHighest, 20);
}

TEST(DayFigures, SumsOnlyTheDaysThatAreAsked) {
    const DayFigures figures =
        dayFiguresOf(load({2024, 5, 1, 23, 45}, 15, std::vector<std::int16_t>(98, 10)));
    ASSERT_EQ(figures.days.size(), 3U); // one reading, 96, one
    EXPECT_EQ(figures.between(figures.firstDay + 1, figures.firstDay + 1).points, 96);
    EXPECT_EQ(figures.between(figures.firstDay - 5, figures.firstDay).points, 1);
    EXPECT_EQ(figures.between(figures.firstDay + 3, figures.firstDay + 9).points, 0);
    EXPECT_EQ(figures.between(0, 99999).points, 98);
}

TEST(DayFigures, ComesBackFromItsBytes) {
    const DayFigures figures =
        dayFiguresOf(load({1999, 12, 31, 23, 50}, 1, {-5, 10, 32767, -32768, 0, 1, 2, 3, 4, 5, 6, 7}));
    const auto back = unpackDays(packDays(figures));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->firstDay, figures.firstDay);
    EXPECT_EQ(packDays(*back), packDays(figures));
    EXPECT_EQ(back->days.at(0).highestAt, figures.days[0].highestAt);
    EXPECT_EQ(back->days.at(0).total, -5 + 10 + 32767 - 32768 + 0 + 1 + 2 + 3 + 4 + 5);
    EXPECT_FALSE(unpackDays(packDays(figures).substr(0, 9)));
}

TEST(DayFigures, DividesMeanByHighestOfTheDemands) {
    Figures figures;
    figures.points = 4;
    figures.total = 100; // tenths
    figures.blocks = 2;
    figures.blockTotal = 60;
    figures.blockHighest = 40;
    EXPECT_DOUBLE_EQ(meanOf(figures).value(), 2.5);
    EXPECT_DOUBLE_EQ(loadFactorOf(figures, 'A').value(), 0.75);
    EXPECT_FALSE(loadFactorOf(figures, 'V'));
    figures.blockHighest = 0;
    EXPECT_FALSE(loadFactorOf(figures, 'A'));
    EXPECT_FALSE(loadFactorOf(Figures(), 'A'));
    EXPECT_FALSE(meanOf(Figures()));
}

} // namespace
} // namespace tally::archive
