// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printpwrinfo.h"

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

class PowerSummary : public ::testing::Test {
protected:
    Recordings recordings;
    DisplayState state;
    testing::FixedClock clock;
    Plot plot;

    bool has(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }
};

TEST_F(PowerSummary, NoFileIsASubscriptFault) {
    EXPECT_THROW(Printpwrinfo(recordings, state, "13800"), Fault);
}

TEST_F(PowerSummary, ThreeFilesOfAHundredAmps) {
    for (const char* path : {"a.dat", "b.dat", "c.dat"})
        addFile(recordings, path, constant(5, 1000));
    recordings.gNotes[0] = {"Elm St", "12", "Ann", "x"};
    viewPower(recordings, state, 13800, clock, plot);
    const std::string noNotes = "Loc:    \r\nName: \r\nCirc:    \r\nOther: \r\n";
    EXPECT_EQ(Printpwrinfo(recordings, state, "13800"),
              "Average          Values\r\n"
              "    File:     a.dat             Ser. A123\r\n"
              "    File:     b.dat             Ser. A123\r\n"
              "    File:     c.dat             Ser. A123\r\n"
              "Mode:  Cont  15 min interval                    Range  LOW\r\n"
              "All Files:  Start:  14:00  Mar 15, 24                End:  15:00  Mar 15, 24\r\n"
              "         Min: 2390.2 KW                                      Max: 4140.0 KW    \r\n"
              "Line Voltage: 13800      Total Energy In Displayed Area: 2,390 KWHR     Power Factor: 1\r\n"
              "Loc:    Elm St\r\nName: Ann\r\nCirc:    12\r\nOther: x\r\n" +
                  noNotes + noNotes);
}

TEST_F(PowerSummary, PowerFactorAndVoltageOfTheSettingAreUsed) {
    addFile(recordings, "a.dat", {1000, 2000});
    viewPower(recordings, state, 10000, clock, plot);
    recordings.powerFactor = 0.5F;
    const std::string text = Printpwrinfo(recordings, state, "20000");
    EXPECT_TRUE(
        has(text, "         Min: 1000.0 KW                                      Max: 2000.0 KW    \r\n"));
    EXPECT_TRUE(has(text, "Line Voltage: 20000   "));
    EXPECT_TRUE(has(text, "  Power Factor: 0.5\r\n"));
}

TEST_F(PowerSummary, PowerFactorOfZeroCountsAsOne) {
    addFile(recordings, "a.dat", {1000, 2000});
    viewPower(recordings, state, 10000, clock, plot);
    recordings.powerFactor = 0;
    EXPECT_TRUE(has(Printpwrinfo(recordings, state, "10000"), "Min: 1000.0 KW"));
}

TEST_F(PowerSummary, SpanOfAllFilesReachesFromTheOldestToTheNewest) {
    addFile(recordings, "a.dat", constant(5, 1));
    addFile(recordings, "b.dat", constant(9, 1), {.start = toReadingTime({2024, 3, 15, 13, 0})});
    EXPECT_TRUE(has(Printpwrinfo(recordings, state, "13800"),
                    "All Files:  Start:  13:00  Mar 15, 24                End:  15:00  Mar 15, 24\r\n"));
}

TEST_F(PowerSummary, SelectedBlockOnlyWhileASpanIsApplied) {
    addFile(recordings, "a.dat", testing::ramp(100, 10));
    viewPower(recordings, state, 10000, clock, plot);
    EXPECT_FALSE(has(Printpwrinfo(recordings, state, "10000"), "Selected"));
    markSpanStart(recordings, state, plot, 4);
    markSpanEnd(recordings, state, plot, 6);
    requestZoom(recordings, state);
    DisplPlotPwr(recordings, state, 10000, clock, plot);
    EXPECT_TRUE(has(Printpwrinfo(recordings, state, "10000"),
                    "Selected:       Start  15:00  Mar 15, 24                Finish  15:30  Mar 15, 24\r\n"
                    " Min 40.0                                      max  60.0\r\n"));
}

TEST_F(PowerSummary, ExtremesOfThePowerPlotOutliveADataPlot) {
    for (const char* path : {"a.dat", "b.dat", "c.dat"})
        addFile(recordings, path, constant(5, 1000));
    viewPower(recordings, state, 13800, clock, plot);
    const std::string text = Printpwrinfo(recordings, state, "13800");
    startPlot(recordings, state);
    DisplPlot(recordings, state, clock);
    EXPECT_EQ(state.extremeMax, 1000);
    EXPECT_EQ(Printpwrinfo(recordings, state, "13800"), text);
}

} // namespace
} // namespace tally
