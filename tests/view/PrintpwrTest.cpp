// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printpwr.h"

#include "core/Fault.h"
#include "support/FixedClock.h"
#include "support/SampleFile.h"
#include "view/PlotModel.h"
#include "view/Power.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::constant;

class PowerTable : public ::testing::Test {
protected:
    Recordings recordings;
    DisplayState state;
    testing::FixedClock clock;
    Plot plot;
};

TEST_F(PowerTable, NoFileIsASubscriptFault) {
    EXPECT_THROW(Printpwr(recordings, state), Fault);
}

TEST_F(PowerTable, WithoutAPowerPlotItIsEmpty) {
    addFile(recordings, "a.dat", {1});
    recordings.gTable = "an older table";
    Printpwr(recordings, state);
    EXPECT_EQ(recordings.gTable, "");
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
            viewPower(recordings, state, 1000, clock, plot);
            EXPECT_EQ(Printpwr(recordings, state), expected.heading);
            const std::size_t line = 23 + expected.values * expected.width + 2;
            EXPECT_EQ(recordings.gTable.find("\r\n"), line - 2);
            EXPECT_EQ(recordings.gTable.substr(line, 5), expected.second);
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
        viewPower(recordings, state, 1000, clock, plot);
        Printpwr(recordings, state);
        EXPECT_EQ(recordings.gTable, std::string("14:00  Mar 15, 24      ") + expected.field + "\r\n");
    }
}

TEST_F(PowerTable, ThreeFilesOfAHundredAmps) {
    for (const char* path : {"a.dat", "b.dat", "c.dat"})
        addFile(recordings, path, constant(2, 1000));
    viewPower(recordings, state, 13800, clock, plot);
    Printpwr(recordings, state);
    EXPECT_EQ(recordings.gTable, "14:00  Mar 15, 24        2390.2    2390.2  \r\n");
}

TEST_F(PowerTable, LargeValuesKeepAllTheirDigits) {
    addFile(recordings, "a.dat", {1});
    state.power = {12345.6F};
    Printpwr(recordings, state);
    EXPECT_EQ(recordings.gTable, "14:00  Mar 15, 24        12345.6  \r\n");
    recordings.gInfo[0].low = false;
    Printpwr(recordings, state);
    EXPECT_EQ(recordings.gTable, "14:00  Mar 15, 24       12346   \r\n");
}

TEST_F(PowerTable, ZoomedPowerPlotStartsTheTableAtTheSpan) {
    addFile(recordings, "a.dat", testing::ramp(100, 10));
    viewPower(recordings, state, 10000, clock, plot);
    markSpanStart(recordings, state, plot, 4);
    markSpanEnd(recordings, state, plot, 5);
    requestZoom(recordings, state);
    DisplPlotPwr(recordings, state, 10000, clock, plot);
    Printpwr(recordings, state);
    EXPECT_EQ(recordings.gTable, "15:00  Mar 15, 24        040.0    050.0  \r\n");
}

TEST_F(PowerTable, LastPowerPlotStandsWhateverIsDisplayedSince) {
    addFile(recordings, "a.dat", testing::ramp(3, 10));
    viewPower(recordings, state, 10000, clock, plot);
    Printpwr(recordings, state);
    const std::string table = recordings.gTable;
    EXPECT_EQ(table, "14:00  Mar 15, 24        000.0    010.0    020.0  \r\n");
    startPlot(recordings, state);
    const Plot data = DisplPlot(recordings, state, clock);
    markSpanStart(recordings, state, data, 1);
    markSpanEnd(recordings, state, data, 2);
    requestZoom(recordings, state);
    DisplPlot(recordings, state, clock);
    Printpwr(recordings, state);
    EXPECT_EQ(recordings.gTable, table);
}

} // namespace
} // namespace tally
