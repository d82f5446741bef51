// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Span.h"

#include "core/Fault.h"
#include "support/FixedClock.h"
#include "support/SampleFile.h"
#include "view/PlotModel.h"
#include "view/Power.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::ramp;

class Span : public ::testing::Test {
protected:
    Recordings recordings;
    DisplayState state;
    testing::FixedClock clock;

    Plot viewPlot() {
        startPlot(recordings, state);
        return DisplPlot(recordings, state, clock);
    }
    Plot zoom() {
        requestZoom(recordings, state);
        return DisplPlot(recordings, state, clock);
    }
};

TEST_F(Span, ViewPlotShowsTheWholeFirstFileAndDropsEverySelection) {
    addFile(recordings, "a.dat", ramp(10));
    recordings.gDatastart = 4;
    recordings.gdataend = 6;
    recordings.gZoomFlag = true;
    state.spanApplied = state.spanSelected = state.onePage = state.powerView = state.zoomRequest = true;
    startPlot(recordings, state);
    EXPECT_EQ(recordings.gDatastart, 0);
    EXPECT_EQ(recordings.gdataend, 9);
    EXPECT_FALSE(recordings.gZoomFlag);
    EXPECT_FALSE(state.spanApplied);
    EXPECT_FALSE(state.spanSelected);
    EXPECT_FALSE(state.onePage);
    EXPECT_FALSE(state.powerView);
    EXPECT_FALSE(state.zoomRequest);
}

TEST_F(Span, PressAndReleaseMarkAbsoluteIndexesWithTheirTimes) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot plot = viewPlot();
    markSpanStart(recordings, state, plot, 2);
    EXPECT_FALSE(state.spanSelected);
    markSpanEnd(recordings, state, plot, 5);
    EXPECT_TRUE(state.spanSelected);
    EXPECT_EQ(state.spanStart, 2);
    EXPECT_EQ(state.spanEnd, 5);
    EXPECT_EQ(screenTime(state.spanStartTime), "14:30  Mar 15, 24");
    EXPECT_EQ(screenTime(state.spanEndTime), "15:15  Mar 15, 24");
}

TEST_F(Span, DraggingToTheLeftMarksTheSameSpan) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot plot = viewPlot();
    markSpanStart(recordings, state, plot, 5);
    markSpanEnd(recordings, state, plot, 2);
    EXPECT_EQ(state.spanStart, 2);
    EXPECT_EQ(state.spanEnd, 5);
    EXPECT_EQ(screenTime(state.spanStartTime), "14:30  Mar 15, 24");
    EXPECT_EQ(screenTime(state.spanEndTime), "15:15  Mar 15, 24");
}

TEST_F(Span, ReleaseBeyondTheLastPointIsClampedToTheEnd) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot plot = viewPlot();
    markSpanStart(recordings, state, plot, -3);
    markSpanEnd(recordings, state, plot, 10000);
    EXPECT_EQ(state.spanStart, 0);
    EXPECT_EQ(state.spanEnd, 9);
    EXPECT_EQ(screenTime(state.spanEndTime), "16:15  Mar 15, 24");
}

TEST_F(Span, PointsOfTriplesMarkWholeTriplesInEitherDirection) {
    addFile(recordings, "g.dat", ramp(30), {.letter = 'g'});
    const Plot plot = viewPlot();
    for (const auto& [press, release] : {std::pair{2, 4}, {4, 2}}) {
        markSpanStart(recordings, state, plot, press);
        markSpanEnd(recordings, state, plot, release);
        EXPECT_EQ(state.spanStart, 6);
        EXPECT_EQ(state.spanEnd, 14);
        EXPECT_EQ(screenTime(state.spanStartTime), "14:30  Mar 15, 24");
        EXPECT_EQ(screenTime(state.spanEndTime), "15:00  Mar 15, 24");
    }
}

TEST_F(Span, ZoomNarrowsTheRangeToTheSpan) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot whole = viewPlot();
    markSpanStart(recordings, state, whole, 2);
    markSpanEnd(recordings, state, whole, 5);
    requestZoom(recordings, state);
    EXPECT_FALSE(state.spanSelected);
    EXPECT_TRUE(state.zoomRequest);
    EXPECT_TRUE(recordings.gZoomFlag);
    const Plot plot = DisplPlot(recordings, state, clock);
    EXPECT_EQ(recordings.gDatastart, 2);
    EXPECT_EQ(recordings.gdataend, 5);
    EXPECT_EQ(plot.points, 4);
    EXPECT_EQ(plot.firstEntry, 2);
    EXPECT_TRUE(state.spanApplied);
    EXPECT_TRUE(recordings.gZoomFlag);
    EXPECT_FALSE(state.zoomRequest);
}

TEST_F(Span, SpanOfTriplesTwoToFourZoomsToEntriesSixToFourteen) {
    addFile(recordings, "g.dat", ramp(30), {.letter = 'g'});
    const Plot whole = viewPlot();
    markSpanStart(recordings, state, whole, 2);
    markSpanEnd(recordings, state, whole, 4);
    const Plot plot = zoom();
    EXPECT_EQ(recordings.gDatastart, 6);
    EXPECT_EQ(recordings.gdataend, 14);
    EXPECT_EQ(plot.points, 3);
    EXPECT_EQ(plot.series.size(), 3U);
    EXPECT_FLOAT_EQ(plot.series[0].values[0], 0.6F); // average of the first triple
    EXPECT_FLOAT_EQ(plot.series[2].values[2], 1.4F); // minimum of the last
}

TEST_F(Span, DragPastTheRightEdgeZoomsToTheLastReading) {
    addFile(recordings, "a.dat", testing::constant(20, 55));
    const Plot whole = viewPlot();
    markSpanStart(recordings, state, whole, 15);
    markSpanEnd(recordings, state, whole, 25);
    const Plot plot = zoom();
    EXPECT_EQ(recordings.gdataend, 19);
    EXPECT_EQ(plot.points, 5);
    EXPECT_EQ(plot.series[0].values, std::vector<float>(5, 5.5F)); // no 0 at the end
    EXPECT_EQ(state.extremeMin, 55);
}

TEST_F(Span, DragPastTheRightEdgeOfTriplesEndsWithTheLastMinimum) {
    addFile(recordings, "g.dat", testing::constant(30, 55), {.letter = 'g'});
    const Plot whole = viewPlot();
    markSpanStart(recordings, state, whole, 8);
    markSpanEnd(recordings, state, whole, 11);
    const Plot plot = zoom();
    EXPECT_EQ(recordings.gDatastart, 24);
    EXPECT_EQ(recordings.gdataend, 29);
    EXPECT_EQ(plot.points, 2);
    EXPECT_EQ(state.extremeMin, 55);
}

TEST_F(Span, SecondZoomCountsFromTheZoomedRange) {
    addFile(recordings, "a.dat", ramp(100));
    Plot plot = viewPlot();
    markSpanStart(recordings, state, plot, 20);
    markSpanEnd(recordings, state, plot, 59);
    plot = zoom();
    markSpanStart(recordings, state, plot, 10);
    markSpanEnd(recordings, state, plot, 19);
    EXPECT_EQ(state.spanStart, 30);
    plot = zoom();
    EXPECT_EQ(recordings.gDatastart, 30);
    EXPECT_EQ(recordings.gdataend, 39);
    EXPECT_FLOAT_EQ(plot.series[0].values[0], 3.0F);
}

TEST_F(Span, ZoomSkipsTheOddOldestEntries) {
    addFile(recordings, "g.dat", ramp(11), {.letter = 'g'}); // triples at 2, 5, 8
    const Plot whole = viewPlot();
    EXPECT_EQ(whole.points, 3);
    markSpanStart(recordings, state, whole, 1);
    markSpanEnd(recordings, state, whole, 2);
    zoom();
    EXPECT_EQ(recordings.gDatastart, 5);
    EXPECT_EQ(recordings.gdataend, 10);
}

TEST_F(Span, ZoomWithoutAMarkShowsTheWholeFile) {
    addFile(recordings, "a.dat", ramp(10));
    viewPlot();
    const Plot plot = zoom();
    EXPECT_EQ(plot.points, 10);
    EXPECT_EQ(recordings.gdataend, 9);
}

TEST_F(Span, RefreshRedrawsTheZoomedRange) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot whole = viewPlot();
    markSpanStart(recordings, state, whole, 2);
    markSpanEnd(recordings, state, whole, 5);
    zoom();
    const Plot again = DisplPlot(recordings, state, clock);
    EXPECT_EQ(again.points, 4);
    EXPECT_TRUE(state.spanApplied);
}

TEST_F(Span, MarkingOnAnEmptyPlotStaysAtItsFirstEntry) {
    addFile(recordings, "g.dat", ramp(2), {.letter = 'g'});
    const Plot plot = viewPlot();
    EXPECT_EQ(plot.points, 0);
    markSpanStart(recordings, state, plot, 5);
    markSpanEnd(recordings, state, plot, 7);
    const Plot zoomed = zoom();
    EXPECT_EQ(zoomed.points, 0);
    EXPECT_EQ(recordings.gdataend, 1);
}

TEST_F(Span, GivenRangeCountsAsMarkedAndApplied) {
    addFile(recordings, "a.dat", ramp(10));
    EXPECT_TRUE(applyRange(recordings, state, 3, 6));
    EXPECT_TRUE(state.spanApplied);
    EXPECT_TRUE(recordings.gZoomFlag);
    EXPECT_EQ(recordings.gDatastart, 3);
    EXPECT_EQ(recordings.gdataend, 6);
    EXPECT_EQ(state.spanStart, 3);
    EXPECT_EQ(state.spanEnd, 6);
    EXPECT_EQ(DisplPlot(recordings, state, clock).points, 4);
}

TEST_F(Span, RefusedRangeChangesNothing) {
    addFile(recordings, "a.dat", ramp(10));
    EXPECT_FALSE(applyRange(recordings, state, 6, 10));
    EXPECT_FALSE(state.spanApplied);
    EXPECT_EQ(recordings.gDatastart, 0);
    EXPECT_EQ(recordings.gdataend, 9);
}

TEST_F(Span, ScaleTakesAWholeNumber) {
    setScale(state, "12.5");
    EXPECT_TRUE(state.userScale);
    EXPECT_EQ(state.yMinimum, 12);
}

TEST_F(Span, ScaleRefusesWhatIsNoNumber) {
    for (const char* answer : {"", "abc", "12 amps"}) {
        try {
            setScale(state, answer);
            ADD_FAILURE() << answer;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 13);
        }
        EXPECT_FALSE(state.userScale);
    }
    EXPECT_THROW(setScale(state, "32768"), Fault);
    EXPECT_FALSE(state.userScale);
}

TEST_F(Span, OnePagePlotDropsTheMarkAndShowsTheWholeRange) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot whole = viewPlot();
    markSpanStart(recordings, state, whole, 2);
    markSpanEnd(recordings, state, whole, 5);
    requestZoom(recordings, state);
    EXPECT_EQ(DisplPlot(recordings, state, clock).points, 4);
    state.spanSelected = true;
    startOnePage(recordings, state);
    EXPECT_TRUE(state.onePage);
    EXPECT_FALSE(state.spanSelected);
    EXPECT_FALSE(state.spanApplied);
    EXPECT_FALSE(recordings.gZoomFlag);
    EXPECT_EQ(DisplPlot(recordings, state, clock).points, 10);
    EXPECT_EQ(recordings.gDatastart, 0);
    EXPECT_EQ(recordings.gdataend, 9);
    EXPECT_TRUE(state.onePage);
    startPlot(recordings, state);
    EXPECT_FALSE(state.onePage);
}

TEST_F(Span, OnePagePlotOfThePowerViewShowsItsWholeRange) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot whole = viewPlot();
    markSpanStart(recordings, state, whole, 2);
    markSpanEnd(recordings, state, whole, 5);
    requestZoom(recordings, state);
    Plot plot;
    ASSERT_EQ(DisplPlotPwr(recordings, state, 1000, clock, plot), PowerRefusal::none);
    EXPECT_EQ(plot.points, 4);
    startOnePage(recordings, state);
    EXPECT_TRUE(state.powerView) << "the power plot stays the current view";
    ASSERT_EQ(DisplPlotPwr(recordings, state, 1000, clock, plot), PowerRefusal::none);
    EXPECT_EQ(plot.points, 10);
}

TEST_F(Span, FixedTexts) {
    EXPECT_EQ(scalePrompt, "Enter min value for Y Scale");
    EXPECT_EQ(onePageButton, "print on one page");
    EXPECT_EQ(onePageLabel, "\r\nONE PAGE PLOT IS ENABLED\r\nClick the Print Icon to print this report");
}

TEST_F(Span, ForgettingTheViewsLeavesNoPowerAndNoSpan) {
    state.energyText = "1 KWHR";
    state.power = {1.0F};
    state.powerDrawn = state.spanApplied = true;
    forgetViews(state);
    EXPECT_TRUE(state.energyText.empty());
    EXPECT_TRUE(state.power.empty());
    EXPECT_FALSE(state.powerDrawn);
    EXPECT_FALSE(state.spanApplied);
    EXPECT_EQ(state.viewKind, ViewKind::none);
}

} // namespace
} // namespace tally
