// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"
#include "platform/archive/OpenedArchive.h"

#include "archive/Day.h"

namespace tally::archive {
namespace {

using tally::testing::constant;
using tally::testing::OpenedArchive;
using tally::testing::tools;

class Questions : public OpenedArchive {
protected:
    Peaks peaks(const char* from = "", const char* to = "", Rank by = Rank::max, std::size_t top = 0) {
        return peaksOf(*store, tools(), parseDay(from), parseDay(to), by, top);
    }
    std::vector<Entry> named(const std::string& circuit) {
        Selection selection;
        selection.circuit = circuit;
        return find(selection);
    }
    static Circuit all(const std::vector<Entry>& entries) {
        Circuit circuit;
        for (const Entry& entry : entries)
            circuit.push_back(&entry);
        return circuit;
    }
};

// A day of quarters of an hour that rises by `step` each hour.
std::vector<int> risingDay(int step) {
    std::vector<int> values;
    for (int quarter = 0; quarter < 96; ++quarter)
        values.push_back(quarter / 4 * step);
    return values;
}

TEST_F(Questions, RanksCircuitsByTheirPeak) {
    add({.values = {10, 50, 30}, .serial = "1", .circuit = "Maple"});
    add({.start = {2020, 2, 1, 0, 0}, .values = {20, 20, 20}, .serial = "2", .circuit = "Maple"});
    add({.values = {60, 0, 0}, .serial = "3", .circuit = "Oak"});
    add({.values = {55, 55, 55}, .serial = "4", .circuit = ""});
    const Peaks found = peaks();
    ASSERT_EQ(found.peaks.size(), 3U);
    EXPECT_EQ(found.peaks[0].entry->belonging.circuit, "Oak");
    EXPECT_DOUBLE_EQ(found.peaks[0].max, 60);
    EXPECT_EQ(timeText(found.peaks[0].maxAt), "2020-01-06T00:00");
    EXPECT_DOUBLE_EQ(found.peaks[0].mean, 20);
    EXPECT_DOUBLE_EQ(found.peaks[0].loadFactor.value(), 1.0 / 3);
    EXPECT_EQ(found.peaks[1].entry->belonging.circuit, "");
    EXPECT_EQ(found.peaks[2].entry->serial[0], '1'); // the recording that the highest reading is from
    EXPECT_DOUBLE_EQ(found.peaks[2].mean, 25);       // 150 of six readings
    EXPECT_DOUBLE_EQ(found.peaks[2].loadFactor.value(), 0.5);
    EXPECT_EQ(peaks("", "", Rank::max, 2).peaks.size(), 2U);
}

TEST_F(Questions, RanksByMeanAndLoadFactorToo) {
    add({.values = {10, 50, 30}, .serial = "1", .circuit = "Maple"}); // mean 30, load factor 0.6
    add({.values = {60, 0, 0}, .serial = "2", .circuit = "Oak"});     // mean 20, load factor 1/3
    add({.values = {300, 300, 300}, .type = 'V', .serial = "3", .circuit = "Bus"}); // no load factor
    EXPECT_EQ(peaks("", "", Rank::mean).peaks.at(1).entry->belonging.circuit, "Maple");
    const Peaks byFactor = peaks("", "", Rank::loadFactor);
    EXPECT_EQ(byFactor.peaks.at(0).entry->belonging.circuit, "Maple");
    EXPECT_EQ(byFactor.peaks.at(2).entry->belonging.circuit, "Bus");
    EXPECT_FALSE(byFactor.peaks.at(2).loadFactor);
}

TEST_F(Questions, LooksOnlyAtTheReadingsOfTheDates) {
    std::vector<int> values = constant(96, 10);
    values[95] = 90;                       // 2020-01-06 23:45
    values.insert(values.end(), {40, 20}); // 2020-01-07 00:00 and 00:15
    add({.values = values});
    const Peaks found = peaks("2020-01-07", "2020-01-07");
    ASSERT_EQ(found.peaks.size(), 1U);
    EXPECT_DOUBLE_EQ(found.peaks[0].max, 40);
    EXPECT_DOUBLE_EQ(found.peaks[0].mean, 30);
    EXPECT_DOUBLE_EQ(found.peaks[0].loadFactor.value(), 0.75);
    EXPECT_TRUE(peaks("2020-01-08", "").peaks.empty());
}

TEST_F(Questions, LeavesOutARecordingWhoseDaysAreGone) {
    add({.values = constant(100, 50), .serial = "1", .circuit = "Maple"}); // into 2020-01-07
    add({.values = constant(100, 40), .serial = "2", .circuit = "Oak"});
    const Id gone = named("Maple").at(0).id;
    Connection connection(place, Connection::Mode::write);
    connection.run(std::string("DELETE FROM ") + (onServer() ? "tallyline." : "") + "daily WHERE id = ?",
                   {gone});
    const Peaks found = peaks("2020-01-07", "2020-01-07");
    ASSERT_EQ(found.peaks.size(), 1U);
    EXPECT_EQ(found.peaks[0].entry->belonging.circuit, "Oak");
    EXPECT_DOUBLE_EQ(found.peaks[0].max, 40);
}

TEST_F(Questions, CountsAReadingOnceWhereRecordingsOverlap) {
    add({.values = {10, 20, 30}, .serial = "1"});                                   // 00:00 to 00:30
    add({.start = {2020, 1, 6, 0, 15}, .values = {90, 80, 40, 60}, .serial = "2"}); // 00:15 to 01:00
    const Peaks found = peaks();
    ASSERT_EQ(found.peaks.size(), 1U);
    // 10, 20, 30 of the first, then 40 and 60 of the second.
    EXPECT_DOUBLE_EQ(found.peaks[0].max, 60);
    EXPECT_EQ(found.peaks[0].entry->serial[0], '2');
    EXPECT_DOUBLE_EQ(found.peaks[0].mean, 32);
    const auto entries = named("Maple");
    const auto growth = growthOf(*store, tools(), all(entries));
    ASSERT_EQ(growth.size(), 1U);
    EXPECT_DOUBLE_EQ(growth[0].peak, 60);
    EXPECT_DOUBLE_EQ(growth[0].mean, 32);
}

TEST_F(Questions, AveragesFinerRecordingsIntoTheCoarsest) {
    add({.start = {2020, 1, 6, 0, 0}, .values = {10, 20, 60}, .mode = 'b', .serial = "1"}); // five minutes
    add({.start = {2020, 1, 6, 0, 15}, .values = {50, 10}, .serial = "2"});
    const Peaks found = peaks();
    EXPECT_DOUBLE_EQ(found.peaks.at(0).max, 50);
    EXPECT_DOUBLE_EQ(found.peaks.at(0).mean, 30); // 30, 50, 10
}

TEST_F(Questions, CoversTheDaysThatHaveAReading) {
    add({.start = {2020, 1, 1, 0, 0}, .values = constant(96, 1), .serial = "1"});
    add({.start = {2020, 1, 2, 0, 0}, .values = constant(96, 1), .serial = "2"});
    add({.start = {2020, 1, 5, 23, 45}, .values = {1, 1}, .serial = "3"});
    add({.start = {2020, 1, 20, 0, 0}, .values = {1, 1}, .serial = "4", .circuit = "Oak"});
    Selection maple;
    maple.circuit = "Maple";
    const Coverage coverage = coverageOf(*store, maple);
    EXPECT_EQ(coverage.days, 4);
    ASSERT_EQ(coverage.covered.size(), 2U);
    EXPECT_EQ(dayText(coverage.covered[1].last), "2020-01-06");
    ASSERT_EQ(coverage.gaps().size(), 1U);
    EXPECT_EQ(dayText(coverage.gaps()[0].first), "2020-01-03");
    EXPECT_EQ(dayText(coverage.gaps()[0].last), "2020-01-04");
    EXPECT_EQ(coverageOf(*store, {}).days, 5);
    maple.circuit = "Elm";
    EXPECT_EQ(coverageOf(*store, maple).days, 0);
}

TEST_F(Questions, ShowsTheGrowthFromYearToYear) {
    add({.start = {2018, 12, 31, 23, 30}, .values = {10, 20, 40, 0}, .serial = "1"}); // two years meet
    add({.start = {2021, 1, 1, 0, 0}, .values = {50, 50}, .serial = "2"});
    const auto entries = named("Maple");
    const auto growth = growthOf(*store, tools(), all(entries));
    ASSERT_EQ(growth.size(), 3U);
    EXPECT_EQ(growth[0].year, 2018);
    EXPECT_DOUBLE_EQ(growth[0].peak, 20);
    EXPECT_DOUBLE_EQ(growth[0].mean, 15);
    EXPECT_EQ(growth[0].days, 1);
    EXPECT_FALSE(growth[0].change);
    EXPECT_EQ(growth[1].year, 2019);
    EXPECT_DOUBLE_EQ(growth[1].change.value(), 100);
    EXPECT_EQ(growth[2].year, 2021);
    EXPECT_DOUBLE_EQ(growth[2].change.value(), 25);
}

TEST_F(Questions, ShowsATypicalDay) {
    add({.start = {2020, 1, 6, 0, 0}, .values = risingDay(1), .serial = "1"}); // Monday
    add({.start = {2020, 1, 8, 0, 0}, .values = risingDay(3), .serial = "2"}); // Wednesday
    add({.start = {2020, 1, 11, 0, 0}, .values = {7}, .serial = "3"});         // Saturday
    const auto entries = named("Maple");
    const TypicalDays days = typicalDaysOf(*store, tools(), all(entries));
    EXPECT_EQ(days[0].days, 2);
    ASSERT_EQ(days[0].slots.size(), 96U);
    const DaySlot slot = days[0].slots[40].value(); // 10:00: 10 and 30
    EXPECT_DOUBLE_EQ(slot.mean, 20);
    EXPECT_DOUBLE_EQ(slot.min, 10);
    EXPECT_DOUBLE_EQ(slot.max, 30);
    EXPECT_DOUBLE_EQ(slot.p10, 10);
    EXPECT_DOUBLE_EQ(slot.p90, 30);
    EXPECT_EQ(days[1].days, 1);
    EXPECT_DOUBLE_EQ(days[1].slots[0].value().mean, 7);
    EXPECT_FALSE(days[1].slots[1]);
    EXPECT_EQ(days[2].days, 0);
    EXPECT_EQ(days[2].slots.size(), 96U);
}

TEST_F(Questions, SumsTheCircuitsOfAStation) {
    add({.start = {2020, 1, 6, 23, 30}, .values = {10, 20, 30}, .serial = "1", .circuit = "Maple"});
    add({.start = {2020, 1, 6, 23, 45}, .values = {5, 50}, .serial = "2", .circuit = "Oak"});
    add({.values = {900}, .serial = "3", .station = "South"});
    Selection north;
    north.station = "North";
    const auto entries = find(north);
    const int first = parseDay("2020-01-06").value();
    const auto days = stationDaysOf(*store, tools(), entries, first, first + 1);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_DOUBLE_EQ(days[0].peak, 25); // 10, then 20 + 5
    EXPECT_EQ(timeText(days[0].peakAt), "2020-01-06T23:45");
    EXPECT_DOUBLE_EQ(days[0].mean, 17.5);
    EXPECT_EQ(days[0].circuits, 2);
    EXPECT_DOUBLE_EQ(days[1].peak, 80);
    EXPECT_EQ(stationDaysOf(*store, tools(), entries, first, first).size(), 1U);
}

TEST_F(Questions, NamesTheRecordingThatAnotherWasCutFrom) {
    add({.values = {10, 20, 30, 40}, .serial = "1"});
    add({.start = {2020, 1, 6, 0, 15}, .values = {20, 30}, .serial = "1"});
    add({.start = {2020, 1, 6, 0, 15}, .values = {20, 30}, .serial = "2"});
    const auto entries = find();
    const auto cut = std::find_if(entries.begin(), entries.end(), [](const Entry& entry) {
        return entry.count == 2 && entry.serial[0] == '1';
    });
    const auto origins = originsOf(*store, *cut);
    ASSERT_EQ(origins.size(), 1U);
    EXPECT_EQ(origins[0].count, 4);
    EXPECT_TRUE(originsOf(*store, origins[0]).empty());
}

} // namespace
} // namespace tally::archive
