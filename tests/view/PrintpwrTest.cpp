// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printpwr.h"

#include "core/Fault.h"
#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;

class PowerTable : public testing::ShownFiles {
protected:
    Table table() { return Printpwr(recordings, power()); }
};

TEST_F(PowerTable, NoFileIsASubscriptFault) {
    EXPECT_THROW(Printpwr(recordings, {}), Fault);
}

TEST_F(PowerTable, LayoutsFollowTheInterval) {
    const struct {
        const char* letters;
        const char* heading;
        std::size_t values;
        std::size_t width; // of a value and its two blanks
        const char* second;
    } cases[] = {
        {"ad", " Time     Date               Eight readings of average power in KW      ", 8, 9, "16:00"},
        {"be", " Time     Date               Six readings of average power in KW        ", 6, 14, "14:30"},
        {"cf", " Time     Date               Ten readings of average power in KW        ", 10, 7, "14:10"}};
    for (const auto& expected : cases) {
        for (const char letter : std::string(expected.letters)) {
            recordings.closeAll();
            addFile(recordings, "a.dat", constant(11, 1), {.letter = letter});
            setVolts(1000);
            const Table made = table();
            EXPECT_EQ(made.heading, expected.heading);
            const std::size_t line = 23 + expected.values * expected.width + 2;
            EXPECT_EQ(made.text.find("\r\n"), line - 2);
            EXPECT_EQ(made.text.substr(line, 5), expected.second);
        }
    }
}

TEST_F(PowerTable, FieldsOfEachLayout) {
    const struct {
        char letter;
        bool low;
        const char* field;
    } cases[] = {{'a', true, "  002.5  "},      {'a', false, " 0003   "}, {'b', true, "     002.5    "},
                 {'b', false, "      003    "}, {'c', true, "002.5  "},   {'c', false, " 0003  "}};
    for (const auto& expected : cases) {
        recordings.closeAll();
        addFile(recordings, "a.dat", {25}, {.letter = expected.letter, .low = expected.low});
        setVolts(1000);
        EXPECT_EQ(table().text, std::string("14:00  Mar 15, 24      ") + expected.field + "\r\n");
    }
}

TEST_F(PowerTable, ThreeFilesOfAHundredAmps) {
    for (const char* path : {"a.dat", "b.dat", "c.dat"})
        addFile(recordings, path, constant(2, 1000));
    EXPECT_EQ(table().text, "14:00  Mar 15, 24        2390.2    2390.2  \r\n");
}

TEST_F(PowerTable, LargeValuesKeepAllTheirDigits) {
    addFile(recordings, "a.dat", {1});
    Power large;
    large.range = {0, 0};
    large.kilowatts = {12345.6F};
    EXPECT_EQ(Printpwr(recordings, large).text, "14:00  Mar 15, 24        12345.6  \r\n");
    recordings.gInfo[0].low = false;
    EXPECT_EQ(Printpwr(recordings, large).text, "14:00  Mar 15, 24       12346   \r\n");
}

TEST_F(PowerTable, ZoomedRangeStartsTheTableAtTheSpan) {
    addFile(recordings, "a.dat", testing::ramp(100, 10));
    setVolts(10000);
    mark(viewPower(), 4, 5);
    zoom();
    EXPECT_EQ(table().text, "15:00  Mar 15, 24        040.0    050.0  \r\n");
}

TEST_F(PowerTable, RangeThatADataPlotZoomedToIsTheTables) {
    addFile(recordings, "a.dat", testing::ramp(3, 10));
    setVolts(10000);
    viewPower();
    EXPECT_EQ(table().text, "14:00  Mar 15, 24        000.0    010.0    020.0  \r\n");
    mark(viewPlot(), 1, 2);
    zoom();
    EXPECT_EQ(table().text, "14:15  Mar 15, 24        010.0    020.0  \r\n");
}

TEST_F(PowerTable, ReadingsVoltageAndFactorInForceAreUsed) {
    addFile(recordings, "a.dat", {1000, 1000});
    setVolts(10000);
    viewPower();
    recordings.gReadings[0][1] = 500;
    setVolts(20000);
    basis.factor = 0.5F;
    EXPECT_EQ(table().text, "14:00  Mar 15, 24        1000.0    500.0  \r\n");
}

} // namespace
} // namespace tally
