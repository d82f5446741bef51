// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/CircuitLoad.h"
#include "archive/Day.h"
#include "archive/PlainTools.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

Entry entry(std::int64_t added, const CivilTime& start, int interval, int points) {
    Entry one;
    one.id = added;
    one.added = added;
    one.interval = interval;
    one.start = toReadingTime(start);
    one.end = one.start + std::int64_t{interval} * points;
    return one;
}

Part part(const Entry& one, std::vector<std::int16_t> average) {
    return {&one, {one.start, one.interval, std::move(average), {}, {}}};
}

TEST(CircuitLoad, PutsRecordingsInOrderOfTime) {
    const Entry later = entry(1, {2024, 5, 2, 0, 0}, 15, 2);
    const Entry earlier = entry(2, {2024, 5, 1, 0, 0}, 15, 2);
    const CircuitLoad load = circuitLoadOf({part(later, {3, 4}), part(earlier, {1, 2})}, 15);
    ASSERT_EQ(load.points.size(), 4U);
    EXPECT_EQ(load.scale, 1);
    EXPECT_EQ(load.points[0].value, 1);
    EXPECT_EQ(load.points[3].value, 4);
    EXPECT_EQ(load.points[3].from, 1);
}

TEST(CircuitLoad, TakesTheRecordingThatWasAddedFirstAtOneTime) {
    const Entry first = entry(1, {2024, 5, 1, 0, 15}, 15, 2);
    const Entry second = entry(2, {2024, 5, 1, 0, 0}, 15, 4);
    const CircuitLoad load = circuitLoadOf({part(second, {10, 20, 30, 40}), part(first, {99, 98})}, 15);
    std::vector<std::int64_t> values;
    for (const CircuitPoint& point : load.points)
        values.push_back(point.value);
    EXPECT_EQ(values, (std::vector<std::int64_t>{10, 99, 98, 40}));
}

TEST(CircuitLoad, AveragesFinerRecordingsIntoTheCoarsest) {
    const Entry fine = entry(1, {2024, 5, 1, 0, 0}, 5, 4);
    const Entry coarse = entry(2, {2024, 5, 1, 0, 30}, 15, 1);
    const CircuitLoad load = circuitLoadOf({part(fine, {10, 20, 31, 7}), part(coarse, {50})}, 15);
    ASSERT_EQ(load.points.size(), 3U);
    EXPECT_EQ(load.scale, fineScale);
    EXPECT_EQ(load.points[0].value * 3, 61 * fineScale); // the mean of 10, 20 and 31, not rounded
    EXPECT_EQ(load.points[0].high, load.points[0].value);
    EXPECT_EQ(load.points[1].value, 7 * fineScale); // what there is of the quarter of an hour
    EXPECT_EQ(load.points[1].at, toReadingTime({2024, 5, 1, 0, 15}));
    EXPECT_EQ(load.points[2].value, 50 * fineScale);
    EXPECT_DOUBLE_EQ(load.value(load.points[2].value), 5.0);
}

TEST(CircuitLoad, KeepsTheMaximaOfFinerTriples) {
    const Entry fine = entry(1, {2024, 5, 1, 0, 0}, 5, 3);
    Part triples = part(fine, {10, 20, 30});
    triples.load.maximum = {50, 90, 40};
    triples.load.minimum = {1, 1, 1};
    const CircuitLoad load = circuitLoadOf({triples}, 15);
    EXPECT_EQ(load.points.at(0).value, 20 * fineScale);
    EXPECT_EQ(load.points.at(0).high, 90 * fineScale);
}

TEST(CircuitLoad, ExactlyDividesByEveryNumberOfReadingsInAnInterval) {
    for (int count = 1; count <= 15; ++count)
        EXPECT_EQ(fineScale % count, 0) << count;
}

TEST(CircuitLoad, GivesTheFiguresOfAStretch) {
    const Entry one = entry(7, {2024, 5, 1, 0, 0}, 15, 4);
    const CircuitLoad load = circuitLoadOf({part(one, {10, 40, 40, 20})}, 15);
    const CircuitFigures sum = figuresOf(load, 1, 3);
    EXPECT_EQ(sum.figures.points, 3);
    EXPECT_EQ(sum.figures.total, 100);
    EXPECT_EQ(sum.figures.highest, 40);
    EXPECT_EQ(timeText(sum.figures.highestAt), "2024-05-01T00:15");
    EXPECT_EQ(sum.highestFrom, 7);
    EXPECT_EQ(sum.figures.blocks, 3);
}

TEST(CircuitLoad, TellsCircuitsApartByStationAndName) {
    std::vector<Entry> entries(5);
    entries[0].belonging = {"North", "Maple", false};
    entries[1].belonging = {"NORTH", "maple", true};
    entries[2].belonging = {"South", "Maple", false};
    entries[3].belonging = {"North", "", false};
    entries[4].belonging = {"North", "", false};
    const auto circuits = circuitsOf(entries, tally::testing::PlainTools());
    ASSERT_EQ(circuits.size(), 4U);
    EXPECT_EQ(circuits[0].size(), 2U);
}

TEST(CircuitLoad, NeverPutsAmpsAndVoltsTogether) {
    std::vector<Entry> entries(3);
    for (Entry& one : entries)
        one.belonging.circuit = "Maple";
    entries[0].unit = 'V';
    EXPECT_EQ(circuitsOf(entries, tally::testing::PlainTools()).at(0).size(), 2U);
    for (Entry& one : entries)
        one.unit = 'V';
    EXPECT_EQ(circuitsOf(entries, tally::testing::PlainTools()).at(0).size(), 3U);
}

TEST(CircuitLoad, StandsApartOnlyWithoutOverlap) {
    const Entry first = entry(1, {2024, 5, 1, 0, 0}, 15, 4); // the last reading at 00:45
    const auto apart = [&](const Entry& second) {
        Circuit circuit = {&second, &first};
        return standApart(circuit);
    };
    EXPECT_TRUE(apart(entry(2, {2024, 5, 1, 1, 0}, 15, 4)));
    EXPECT_FALSE(apart(entry(2, {2024, 5, 1, 0, 45}, 15, 4)));
    EXPECT_FALSE(apart(entry(2, {2024, 4, 30, 0, 0}, 15, 400)));
    EXPECT_FALSE(apart(entry(2, {2024, 5, 9, 0, 0}, 5, 4))); // another interval
}

TEST(CircuitLoad, DoesNotStandApartWhenADemandWindowIsShared) {
    const Entry first = entry(1, {2024, 5, 1, 0, 0}, 5, 4); // the last reading at 00:15
    const Entry second = entry(2, {2024, 5, 1, 0, 20}, 5, 4);
    Circuit circuit = {&first, &second};
    EXPECT_FALSE(standApart(circuit));
    const Entry third = entry(3, {2024, 5, 1, 0, 30}, 5, 4);
    circuit = {&first, &third};
    EXPECT_TRUE(standApart(circuit));
}

} // namespace
} // namespace tally::archive
