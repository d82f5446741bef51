// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotModel.h"

#include "core/Fault.h"
#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::ramp;

class PlotModel : public testing::ShownFiles {};

TEST_F(PlotModel, NoFileIsASubscriptFault) {
    EXPECT_THROW(draw(), Fault);
}

TEST_F(PlotModel, OneFileOfAverages) {
    addFile(recordings, "/x/a.dat", {100, 250, 175});
    const Plot plot = draw();
    EXPECT_EQ(plot.yTitle, "AMPS");
    EXPECT_EQ(plot.points, 3);
    EXPECT_EQ(plot.entriesPerPoint, 1);
    ASSERT_EQ(plot.series.size(), 1U);
    EXPECT_EQ(plot.series[0].values, (std::vector<float>{10.0F, 25.0F, 17.5F}));
    EXPECT_EQ(plot.series[0].legend, "a.dat");
    EXPECT_EQ(plot.displaying, "a.dat");
    EXPECT_EQ(plot.remark, "");
    EXPECT_EQ(plot.yMin, 9);
    EXPECT_DOUBLE_EQ(plot.yMax, 27.5);
    EXPECT_EQ(plot.extremeMin, 100);
    EXPECT_EQ(plot.extremeMax, 250);
    EXPECT_EQ(plot.labels[0], "Mar 15 14:00");
    EXPECT_TRUE(plot.title.starts_with("        File Data:   Max  25A  Min  10A\r\nMode:  Average;"));
}

TEST_F(PlotModel, VoltageFileHasTheAxisTitleVolts) {
    addFile(recordings, "v.dat", {1200}, {.type = 'V'});
    EXPECT_EQ(draw().yTitle, "VOLTS");
}

TEST_F(PlotModel, OneFileOfTriplesShowsItsThreeStatistics) {
    addFile(recordings, "/x/g.dat", {100, 150, 50, 110, 160, 60}, {.letter = 'g'});
    display.setStatistic(Statistic::minimum);
    const Plot plot = draw();
    EXPECT_EQ(plot.points, 2);
    EXPECT_EQ(plot.entriesPerPoint, 3);
    ASSERT_EQ(plot.series.size(), 3U);
    EXPECT_EQ(plot.series[0].legend, "Average");
    EXPECT_EQ(plot.series[0].values, (std::vector<float>{10.0F, 11.0F}));
    EXPECT_EQ(plot.series[1].legend, "Max");
    EXPECT_EQ(plot.series[1].values, (std::vector<float>{15.0F, 16.0F}));
    EXPECT_EQ(plot.series[2].legend, "Min");
    EXPECT_EQ(plot.series[2].values, (std::vector<float>{5.0F, 6.0F}));
    EXPECT_EQ(plot.yMin, 4);
    EXPECT_DOUBLE_EQ(plot.yMax, 17.6);
    EXPECT_TRUE(plot.title.starts_with("File: /x/g.dat\r\n        File Data:   Max  16A  Min  5A\r\n"));
}

TEST_F(PlotModel, MarkedSpanReplacesTheFileLineOfATripleFile) {
    addFile(recordings, "g.dat", ramp(30), {.letter = 'g'});
    const Plot whole = draw();
    mark(whole, 1, 2);
    const Plot marked = draw();
    EXPECT_EQ(marked.series.size(), 3U);
    EXPECT_EQ(marked.points, 10);
    EXPECT_TRUE(marked.title.starts_with("        File Data:"));
    EXPECT_TRUE(marked.title.ends_with("\r\nSelected:   14:15  Mar 15, 24   to   14:30  Mar 15, 24"));
}

TEST_F(PlotModel, TwoTripleFilesShowTheSelectedStatistic) {
    addFile(recordings, "g.dat", {100, 150, 50, 110, 160, 60}, {.letter = 'g'});
    addFile(recordings, "h.dat", {200, 250, 40, 210, 260, 70}, {.letter = 'g'});
    const struct {
        Statistic statistic;
        const char* title;
        std::vector<float> first;
        std::vector<float> second;
    } cases[] = {{Statistic::average, "Data Displayed: AVERAGE\r\n", {10.0F, 11.0F}, {20.0F, 21.0F}},
                 {Statistic::maximum, "Data Displayed: MAXIMUM\r\n", {15.0F, 16.0F}, {25.0F, 26.0F}},
                 {Statistic::minimum, "Data Displayed: MINIMUM\r\n", {5.0F, 6.0F}, {4.0F, 7.0F}}};
    for (const auto& expected : cases) {
        display.setStatistic(expected.statistic);
        const Plot plot = draw();
        ASSERT_EQ(plot.series.size(), 2U);
        EXPECT_EQ(plot.series[0].values, expected.first);
        EXPECT_EQ(plot.series[1].values, expected.second);
        EXPECT_TRUE(plot.title.starts_with(expected.title)) << plot.title;
        EXPECT_EQ(plot.yMin, 3); // the raw entries decide, whatever is shown: Int(3.6)
    }
}

TEST_F(PlotModel, StatisticIsAskedOnlyForSeveralTripleFiles) {
    addFile(recordings, "g.dat", ramp(3), {.letter = 'g'});
    EXPECT_FALSE(needsStatistic(recordings));
    addFile(recordings, "h.dat", ramp(3), {.letter = 'g'});
    EXPECT_TRUE(needsStatistic(recordings));
    Recordings averages;
    addFile(averages, "a.dat", ramp(3));
    addFile(averages, "b.dat", ramp(3));
    EXPECT_FALSE(needsStatistic(averages));
}

TEST_F(PlotModel, ExtremesAreOverAllFiles) {
    addFile(recordings, "a.dat", {100, 200});
    addFile(recordings, "b.dat", {50, 150});
    addFile(recordings, "c.dat", {120, 400});
    const Plot plot = draw();
    EXPECT_EQ(plot.series.size(), 3U);
    EXPECT_EQ(plot.extremeMin, 50);
    EXPECT_EQ(plot.extremeMax, 400);
    EXPECT_EQ(plot.yMin, 4);
    EXPECT_DOUBLE_EQ(plot.yMax, 44);
}

TEST_F(PlotModel, ExtremesBelowZeroAreFound) {
    addFile(recordings, "a.dat", {-300, -100});
    const Plot plot = draw();
    EXPECT_EQ(plot.extremeMin, -300);
    EXPECT_EQ(plot.extremeMax, -100);
}

TEST_F(PlotModel, ShorterFileCountsAsZeroAndIsNamed) {
    addFile(recordings, "a.dat", constant(4, 100));
    addFile(recordings, "b.dat", constant(2, 100));
    const Plot plot = draw();
    EXPECT_EQ(plot.points, 4);
    EXPECT_EQ(plot.series[1].values, (std::vector<float>{10.0F, 10.0F, 0.0F, 0.0F}));
    EXPECT_EQ(plot.remark, "Shorter: b.dat (2 of 4 readings)");
    EXPECT_EQ(plot.extremeMin, 0);
}

TEST_F(PlotModel, LongerFileIsShownAsFarAsTheFirst) {
    addFile(recordings, "a.dat", constant(2, 100));
    addFile(recordings, "b.dat", constant(4, 100));
    const Plot plot = draw();
    EXPECT_EQ(plot.points, 2);
    EXPECT_EQ(display.gdataend(), 1);
    EXPECT_EQ(plot.remark, "Shorter: a.dat (2 of 4 readings)");
    EXPECT_EQ(plot.extremeMin, 100);
}

TEST_F(PlotModel, UserScaleHoldsForOneRedraw) {
    addFile(recordings, "a.dat", constant(4, 100));
    display.setScale("3");
    EXPECT_EQ(draw().yMin, 3);
    EXPECT_EQ(draw().yMin, 9);
}

TEST_F(PlotModel, UserScaleAboveTheReadingsStillLeavesAnAxis) {
    addFile(recordings, "a.dat", constant(4, 100));
    display.setScale("500");
    const Plot plot = draw();
    EXPECT_EQ(plot.yMin, 500);
    EXPECT_GT(plot.yMax, plot.yMin);
}

TEST_F(PlotModel, LongestFileIsDrawnWhole) {
    addFile(recordings, "a.dat", constant(Recordings::maximumReadings, 100), {.letter = 'f'});
    const Plot plot = draw();
    EXPECT_EQ(plot.points, 42966);
    EXPECT_EQ(plot.labelStep, 5370);
    EXPECT_EQ(display.gdataend(), 42965);
}

TEST_F(PlotModel, OddOldestEntriesAreNotDrawn) {
    addFile(recordings, "g.dat", {999, 100, 150, 50, 110, 160, 60}, {.letter = 'g'});
    const Plot plot = draw();
    EXPECT_EQ(plot.points, 2);
    EXPECT_EQ(plot.firstEntry, 1);
    EXPECT_EQ(plot.series[0].values, (std::vector<float>{10.0F, 11.0F}));
    EXPECT_EQ(plot.extremeMax, 160);
}

TEST_F(PlotModel, RecordingWithoutAWholeTripleIsAnEmptyPlot) {
    addFile(recordings, "g.dat", {100, 150}, {.letter = 'g'});
    const Plot plot = draw();
    EXPECT_EQ(plot.points, 0);
    EXPECT_TRUE(plot.series[0].values.empty());
    EXPECT_EQ(plot.yMin, 0);
    EXPECT_EQ(plot.yMax, 10);
}

TEST_F(PlotModel, ForcedReadingsAreMarkedInTheirFileOnly) {
    addFile(recordings, "a.dat", constant(10, 100));
    addFile(recordings, "b.dat", constant(10, 100));
    recordings.forcedEdits[1].push_back({3, {0, 0}});
    const Plot plot = draw();
    EXPECT_TRUE(plot.series[0].forced.empty());
    EXPECT_EQ(plot.series[1].forced, (std::vector<std::pair<int, int>>{{3, 4}}));
}

TEST_F(PlotModel, FilesOfBothUnitsAreNamedOnTheAxis) {
    addFile(recordings, "a.dat", {100});
    addFile(recordings, "v.dat", {1200}, {.type = 'V'});
    const Plot plot = draw();
    EXPECT_EQ(plot.yTitle, "AMPS, VOLTS");
    EXPECT_EQ(plot.remark, "Different units: a.dat is in amps, v.dat in volts");
    EXPECT_EQ(readOut(recordings, plot, 0, 0).value, "10.0 A");
    EXPECT_EQ(readOut(recordings, plot, 0, 1).value, "120.0 V");
}

TEST_F(PlotModel, ReadOutGivesTimeAndValue) {
    addFile(recordings, "a.dat", {100, 255, 175});
    const Plot plot = draw();
    EXPECT_EQ(readOut(recordings, plot, 1).time, "14:15  Mar 15, 24");
    EXPECT_EQ(readOut(recordings, plot, 1).value, "25.5 A");
}

TEST_F(PlotModel, ReadOutOfATripleHasTheTimeOfItsInterval) {
    addFile(recordings, "g.dat", ramp(30), {.letter = 'g', .type = 'V'});
    const Plot plot = draw();
    EXPECT_EQ(readOut(recordings, plot, 2, 1).time, "14:30  Mar 15, 24");
    EXPECT_EQ(readOut(recordings, plot, 2, 1).value, "0.7 V");
}

TEST_F(PlotModel, ReadOutOffTheDataIsEmpty) {
    addFile(recordings, "a.dat", {100});
    const Plot plot = draw();
    for (const auto& [point, series] : {std::pair{-1, 0}, {1, 0}, {0, 1}, {0, -1}}) {
        EXPECT_EQ(readOut(recordings, plot, point, series).time, "");
        EXPECT_EQ(readOut(recordings, plot, point, series).value, "");
    }
    recordings.closeAll();
    EXPECT_EQ(readOut(recordings, plot, 0).time, "");
}

} // namespace
} // namespace tally
