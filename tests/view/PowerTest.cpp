// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Power.h"

#include "core/Fault.h"
#include "support/FixedClock.h"
#include "support/SampleFile.h"
#include "view/PlotModel.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::ramp;

class Power : public ::testing::Test {
protected:
    Recordings recordings;
    DisplayState state;
    testing::FixedClock clock;
    Plot plot;

    PowerRefusal view(double volts = 13800) { return viewPower(recordings, state, volts, clock, plot); }
    PowerRefusal redraw(double volts = 13800) { return DisplPlotPwr(recordings, state, volts, clock, plot); }
    void openThree(int count, std::int16_t tenths) {
        for (const char* path : {"a.dat", "b.dat", "c.dat"})
            addFile(recordings, path, constant(count, tenths));
    }
};

TEST_F(Power, NoFileIsASubscriptFault) {
    EXPECT_THROW(redraw(), Fault);
    EXPECT_THROW(view(), Fault);
}

TEST_F(Power, OneFile) {
    addFile(recordings, "a.dat", {1000, 500});
    recordings.powerFactor = 0.5F;
    EXPECT_EQ(view(10000), PowerRefusal::none);
    EXPECT_EQ(state.power, (std::vector<float>{500.0F, 250.0F}));
    ASSERT_EQ(plot.series.size(), 1U);
    EXPECT_EQ(plot.series[0].values, state.power);
    EXPECT_EQ(plot.yTitle, "KW");
    EXPECT_EQ(plot.points, 2);
    EXPECT_EQ(plot.yMin, 225);                              // 50 x 0.9 x 10 x 0.5
    EXPECT_FLOAT_EQ(static_cast<float>(plot.yMax), 550.0F); // 100 x 1.1 x 10 x 0.5
    EXPECT_EQ(state.extremeMin, 500);
    EXPECT_EQ(state.extremeMax, 1000);
}

TEST_F(Power, TwoFilesAreSummedWithoutTheFactor) {
    addFile(recordings, "a.dat", {1000, 500});
    addFile(recordings, "b.dat", {200, 300});
    view(10000);
    EXPECT_EQ(state.power, (std::vector<float>{1200.0F, 800.0F}));
    EXPECT_EQ(state.extremeMin, 800);
    EXPECT_EQ(state.extremeMax, 1200);
}

TEST_F(Power, ThreeFilesOfAHundredAmps) {
    openThree(4, 1000);
    view();
    ASSERT_EQ(state.power.size(), 4U);
    for (const float kilowatts : state.power)
        EXPECT_FLOAT_EQ(kilowatts, 2390.16F);
}

TEST_F(Power, ThreeFileAxisReachesAboveThePlottedValues) {
    openThree(4, 1000);
    view();
    EXPECT_EQ(plot.yMin, 2151);                              // 173.2 x 0.9 x 13.8 = 2151.144
    EXPECT_FLOAT_EQ(static_cast<float>(plot.yMax), 4554.0F); // 300 x 1.1 x 13.8
    EXPECT_EQ(state.extremeMin, 1732);
    EXPECT_EQ(state.extremeMax, 3000);
    EXPECT_EQ(state.powerExtremeMin, 1732);
    EXPECT_EQ(state.powerExtremeMax, 3000);
}

TEST_F(Power, AxisHasNoFloorOfTen) {
    addFile(recordings, "a.dat", constant(2, 1));
    view(1000);
    EXPECT_FLOAT_EQ(static_cast<float>(plot.yMax), 0.11F);
}

TEST_F(Power, ExtremesAreRoundedToWholeTenths) {
    // Means of 1 and 13 tenths: 1.732, and a sum of 39.
    openThree(2, 1);
    recordings.gReadings[0][1] = recordings.gReadings[1][1] = recordings.gReadings[2][1] = 13;
    view();
    EXPECT_EQ(state.extremeMin, 2);
    EXPECT_EQ(state.extremeMax, 39);
}

TEST_F(Power, ThreeFileSumAboveSixteenBitsOverflowsAndChangesNothing) {
    openThree(3, 10000);
    view();
    const auto power = state.power;
    const std::string energy = state.energyText;
    recordings.gReadings[2][1] = 12768; // 10000 + 10000 + 12768 = 32768
    recordings.gDatastart = 1;
    recordings.gdataend = 2;
    recordings.gZoomFlag = true;
    state.spanApplied = true;
    state.spanSelected = true;
    recordings.powerFactor = 0;
    for (const bool whole : {false, true}) {
        try {
            whole ? view(12000) : redraw(12000);
            ADD_FAILURE();
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 6);
        }
        EXPECT_EQ(state.power, power);
        EXPECT_EQ(state.energyText, energy);
        EXPECT_EQ(state.extremeMax, 30000);
        EXPECT_TRUE(state.spanApplied);
        EXPECT_TRUE(state.spanSelected);
        EXPECT_EQ(recordings.gDatastart, 1);
        EXPECT_EQ(recordings.gdataend, 2);
        EXPECT_TRUE(recordings.gZoomFlag);
        EXPECT_EQ(recordings.powerFactor, 0.0F);
    }
}

TEST_F(Power, ThreeFileSumOverflowsAlreadyWithTwoCurrents) {
    addFile(recordings, "a.dat", {20000});
    addFile(recordings, "b.dat", {20000});
    addFile(recordings, "c.dat", {-20000});
    EXPECT_THROW(view(), Fault);
}

TEST_F(Power, ThreeFileSumAtTheLimitOfSixteenBits) {
    addFile(recordings, "a.dat", {16383});
    addFile(recordings, "b.dat", {16384});
    addFile(recordings, "c.dat", {0});
    EXPECT_EQ(view(), PowerRefusal::none);
    EXPECT_EQ(state.extremeMax, 32767);
}

TEST_F(Power, TwoFileSumIsNoSixteenBitNumberButItsExtremeIs) {
    addFile(recordings, "a.dat", {16000});
    addFile(recordings, "b.dat", {16767});
    EXPECT_EQ(view(), PowerRefusal::none);
    EXPECT_EQ(state.extremeMax, 32767);
    recordings.gReadings[1][0] = 16768;
    EXPECT_THROW(view(), Fault);
}

TEST_F(Power, PowerBeyondSinglePrecisionOverflows) {
    addFile(recordings, "a.dat", {30000});
    EXPECT_THROW(view(3e38), Fault);
    EXPECT_TRUE(state.power.empty());
}

TEST_F(Power, PowerFactorOfZeroBecomesOne) {
    addFile(recordings, "a.dat", {1000});
    recordings.powerFactor = 0;
    view(10000);
    EXPECT_EQ(state.power, std::vector<float>{1000.0F});
    EXPECT_EQ(recordings.powerFactor, 1.0F);
}

TEST_F(Power, VoltageOfZeroAndBelowIsCalculatedAsItStands) {
    addFile(recordings, "a.dat", {1000, 2000});
    view(0);
    EXPECT_EQ(state.power, (std::vector<float>{0.0F, 0.0F}));
    EXPECT_EQ(state.energyText, "0 KWHR");
    view(-10000);
    EXPECT_EQ(state.power, (std::vector<float>{-1000.0F, -2000.0F}));
}

TEST_F(Power, EnergyLeavesOutTheFirstReading) {
    addFile(recordings, "a.dat", {30000, 100, 100, 100, 100});
    view(10000); // four readings of 100 KW, a quarter of an hour each
    EXPECT_EQ(state.energyText, "100 KWHR");
}

TEST_F(Power, EnergyOfOneReadingIsZero) {
    addFile(recordings, "a.dat", {1234});
    view();
    EXPECT_EQ(state.energyText, "0 KWHR");
}

TEST_F(Power, EnergyFollowsTheInterval) {
    for (const auto& [letter, energy] : {std::pair{'b', "1,000 KWHR"}, {'f', "200 KWHR"}}) {
        recordings.closeAll();
        addFile(recordings, "b.dat", constant(13, 1000), {.letter = letter});
        view(10000); // twelve readings of 1000 KW
        EXPECT_EQ(state.energyText, energy);
    }
}

TEST_F(Power, MillionKilowattHoursStayInKilowattHours) {
    addFile(recordings, "a.dat", constant(401, 10000)); // 400 readings of 10,000 KW
    view(10000);
    EXPECT_EQ(state.energyText, "1,000,000 KWHR");
}

TEST_F(Power, AboveAMillionItIsMegawattHours) {
    auto tenths = constant(401, 10000);
    tenths.push_back(4); // 4 KW for a quarter of an hour more
    addFile(recordings, "a.dat", tenths);
    view(10000);
    EXPECT_EQ(state.energyText, "1,000 MWHR");
}

TEST_F(Power, VoltageFileIsRefused) {
    addFile(recordings, "v.dat", {1000}, {.type = 'V'});
    EXPECT_EQ(view(), PowerRefusal::notAmps);
    EXPECT_EQ(refusalText(PowerRefusal::notAmps), "Files must all be amps for power to plot");
}

TEST_F(Power, TripleFileIsRefused) {
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g'});
    EXPECT_EQ(view(), PowerRefusal::notAverage);
    EXPECT_EQ(refusalText(PowerRefusal::notAverage), "Files must be average mode for power to plot");
    EXPECT_EQ(refusalText(PowerRefusal::none), "");
}

TEST_F(Power, LastFileThatFailsDecides) {
    addFile(recordings, "v.dat", {1000}, {.type = 'V'});
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g'});
    EXPECT_EQ(checkPower(recordings), PowerRefusal::notAverage);
    recordings.closeAll();
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g'});
    addFile(recordings, "v.dat", {1000}, {.type = 'V'});
    EXPECT_EQ(checkPower(recordings), PowerRefusal::notAmps);
    addFile(recordings, "a.dat", {1000});
    EXPECT_EQ(checkPower(recordings), PowerRefusal::notAmps);
}

TEST_F(Power, TripleFileOfVoltsIsRefusedForItsMode) {
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g', .type = 'V'});
    EXPECT_EQ(checkPower(recordings), PowerRefusal::notAverage);
}

TEST_F(Power, RefusalChangesNothing) {
    addFile(recordings, "v.dat", ramp(10), {.type = 'V'});
    recordings.gDatastart = 2;
    recordings.gdataend = 5;
    state.spanApplied = state.spanSelected = state.userScale = true;
    plot.title = "as it was";
    EXPECT_EQ(view(), PowerRefusal::notAmps);
    EXPECT_EQ(redraw(), PowerRefusal::notAmps);
    EXPECT_EQ(recordings.gDatastart, 2);
    EXPECT_EQ(recordings.gdataend, 5);
    EXPECT_TRUE(state.spanApplied);
    EXPECT_TRUE(state.spanSelected);
    EXPECT_TRUE(state.userScale);
    EXPECT_FALSE(state.powerView);
    EXPECT_FALSE(state.powerDrawn);
    EXPECT_EQ(plot.title, "as it was");
}

TEST_F(Power, TitleOfOneFile) {
    addFile(recordings, "/x/a.dat", {1000});
    recordings.powerFactor = 0.85F;
    view();
    EXPECT_TRUE(plot.title.starts_with(
        "/x/a.dat      Nominal Line Voltage 13.8 KV  Power Factor: 0.85\r\n        File Data:   Max  100A"));
    EXPECT_EQ(powerTitle(recordings, 13800),
              "/x/a.dat      Nominal Line Voltage 13.8 KV  Power Factor: 0.85");
}

TEST_F(Power, TitleOfSeveralFiles) {
    openThree(2, 100);
    EXPECT_EQ(powerTitle(recordings, 12470),
              "a.dat   b.dat   c.dat     Combined;   Nominal Line Voltage 12.47 KV  Power Factor: 1");
}

TEST_F(Power, ViewPowerShowsTheWholeFileAndBecomesTheView) {
    addFile(recordings, "a.dat", ramp(10));
    recordings.gDatastart = 2;
    recordings.gdataend = 4;
    recordings.gZoomFlag = true;
    state.spanApplied = state.spanSelected = state.onePage = state.userScale = true;
    state.yMinimum = 7;
    view();
    EXPECT_EQ(recordings.gDatastart, 0);
    EXPECT_EQ(recordings.gdataend, 9);
    EXPECT_FALSE(state.spanApplied);
    EXPECT_FALSE(state.spanSelected);
    EXPECT_FALSE(state.onePage);
    EXPECT_FALSE(state.userScale);
    EXPECT_EQ(state.yMinimum, 0);
    EXPECT_TRUE(state.powerView);
    EXPECT_TRUE(state.powerDrawn);
    EXPECT_EQ(state.viewKind, ViewKind::powerPlot);
    EXPECT_EQ(plot.points, 10);
}

TEST_F(Power, DataPlotIsTheViewAgainAfterwards) {
    addFile(recordings, "a.dat", ramp(10));
    view();
    startPlot(recordings, state);
    DisplPlot(recordings, state, clock);
    EXPECT_FALSE(state.powerView);
    EXPECT_TRUE(state.powerDrawn);
    EXPECT_EQ(state.viewKind, ViewKind::dataPlot);
}

TEST_F(Power, ZoomNarrowsPowerEnergyAndExtremes) {
    addFile(recordings, "a.dat", ramp(100, 10));
    view(10000);
    markSpanStart(recordings, state, plot, 10);
    markSpanEnd(recordings, state, plot, 14);
    requestZoom(recordings, state);
    EXPECT_EQ(redraw(10000), PowerRefusal::none);
    EXPECT_EQ(recordings.gDatastart, 10);
    EXPECT_EQ(recordings.gdataend, 14);
    EXPECT_TRUE(state.spanApplied);
    EXPECT_FALSE(state.zoomRequest);
    EXPECT_EQ(state.powerFirst, 10);
    EXPECT_EQ(state.power, (std::vector<float>{100, 110, 120, 130, 140}));
    EXPECT_EQ(state.energyText, "125 KWHR"); // 500 KW x 15 / 60
    EXPECT_EQ(state.extremeMin, 100);
    EXPECT_EQ(state.extremeMax, 140);
    EXPECT_EQ(plot.firstEntry, 10);
    EXPECT_EQ(plot.labels[0], "Mar 15 16:30");
}

TEST_F(Power, MarkedSpanIsInTheTitle) {
    addFile(recordings, "a.dat", ramp(100));
    view();
    markSpanStart(recordings, state, plot, 1);
    markSpanEnd(recordings, state, plot, 2);
    redraw();
    EXPECT_TRUE(plot.title.ends_with("\r\nSelected:   14:15  Mar 15, 24   to   14:30  Mar 15, 24"));
    EXPECT_FALSE(state.spanSelected);
}

TEST_F(Power, UserScaleNeverAppliesAndIsCleared) {
    addFile(recordings, "a.dat", constant(3, 1000));
    view(10000);
    setScale(state, "5");
    redraw(10000);
    EXPECT_EQ(plot.yMin, 900);
    EXPECT_FALSE(state.userScale);
}

TEST_F(Power, ShorterFileCountsAsZeroAndIsNamed) {
    addFile(recordings, "a.dat", constant(4, 100));
    addFile(recordings, "b.dat", constant(2, 100));
    view(10000);
    EXPECT_EQ(state.power, (std::vector<float>{200, 200, 100, 100}));
    EXPECT_EQ(plot.remark, "Shorter: b.dat (2 of 4 readings)");
}

TEST_F(Power, ForcedReadingsOfAnyFileAreMarked) {
    addFile(recordings, "a.dat", constant(9, 100));
    addFile(recordings, "b.dat", constant(9, 100));
    recordings.forcedEdits[0].push_back({1, {0, 0}});
    recordings.forcedEdits[1].push_back({6, {0}});
    view();
    EXPECT_EQ(plot.series[0].forced, (std::vector<std::pair<int, int>>{{1, 2}, {6, 6}}));
}

TEST_F(Power, SourceSaysWhatItWasMadeFrom) {
    addFile(recordings, "/x/a.dat", ramp(3));
    addFile(recordings, "/x/b.dat", ramp(3));
    view();
    EXPECT_EQ(state.powerSource, "Power of a.dat, b.dat at 13.8 KV, power factor 1, 14:00  Mar 15, 24 to "
                                 "14:30  Mar 15, 24");
}

TEST_F(Power, ReadOutIsInKilowatts) {
    openThree(2, 1000);
    view();
    EXPECT_EQ(readOut(recordings, plot, 1).value, "2390.2 KW");
}

TEST_F(Power, LongestFilesKeepTheirEnergy) {
    for (const char* path : {"a.dat", "b.dat", "c.dat"})
        addFile(recordings, path, constant(Recordings::mostReadings, 1000), {.letter = 'c'});
    view();
    // 42,965 x 2390.16 / 60 = 1,711,553.74 KWHR
    EXPECT_EQ(state.energyText, "1,712 MWHR");
    EXPECT_EQ(state.power.size(), 42966U);
}

} // namespace
} // namespace tally
