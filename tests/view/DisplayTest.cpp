// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Display.h"

#include "core/Fault.h"
#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::ramp;

class DisplayOf : public testing::ShownFiles {
protected:
    void expectRange(int first, int last) {
        EXPECT_EQ(display.gDatastart(), first);
        EXPECT_EQ(display.gdataend(), last);
        EXPECT_EQ(display.displayed(recordings), (Range{first, last}));
    }
    std::string title() { return draw().title; }
};

TEST_F(DisplayOf, StartsWithNothing) {
    EXPECT_EQ(display.gDatastart(), 1);
    EXPECT_FALSE(display.gZoomFlag());
    EXPECT_EQ(display.view(), View::none);
    EXPECT_EQ(display.powerFactor(), 1.0F);
}

TEST_F(DisplayOf, OpeningMakesTheWholeFileRangeAndSpan) {
    display.opened(recordings, addFile(recordings, "a.dat", ramp(10)));
    expectRange(0, 9);
    EXPECT_EQ(display.span(), (Range{0, 9}));
    EXPECT_FALSE(display.gZoomFlag());
}

TEST_F(DisplayOf, OpeningAnotherFileForgetsMarkZoomAndPower) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), 2, 5);
    zoom();
    display.setPowerKnown();
    mark(draw(), 1, 1);
    display.opened(recordings, addFile(recordings, "b.dat", ramp(4)));
    EXPECT_FALSE(display.zoomed());
    EXPECT_FALSE(display.gZoomFlag());
    EXPECT_FALSE(display.powerKnown());
    EXPECT_EQ(display.view(), View::none);
    EXPECT_EQ(display.gdataend(), 3) << "of the file opened last";
    EXPECT_EQ(zoom().points, 10) << "a zoom without a new mark shows the whole file";
}

TEST_F(DisplayOf, OpeningAndClosingKeepStatisticAndPowerFactor) {
    display.setStatistic(Statistic::minimum);
    display.setPowerFactor(0.8F);
    display.opened(recordings, addFile(recordings, "a.dat", ramp(10)));
    EXPECT_EQ(display.statistic(), Statistic::minimum);
    EXPECT_EQ(display.powerFactor(), 0.8F);
    display.closed();
    EXPECT_EQ(display.statistic(), Statistic::minimum);
    EXPECT_EQ(display.powerFactor(), 0.8F);
}

TEST_F(DisplayOf, PowerFactorOfZeroIsOne) {
    display.setPowerFactor(0);
    EXPECT_EQ(display.powerFactor(), 1.0F);
}

TEST_F(DisplayOf, ACopyPutBackUndoesEverything) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), 2, 5);
    zoom();
    const Display before = display;
    display.startOnePage(recordings);
    draw();
    display.setPowerFactor(0.5F);
    display = before;
    expectRange(2, 5);
    EXPECT_TRUE(display.zoomed());
    EXPECT_FALSE(display.onePage());
    EXPECT_EQ(display.powerFactor(), 1.0F);
}

TEST_F(DisplayOf, ViewPlotShowsTheWholeFirstFileAndDropsEverySelection) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), 4, 6);
    zoom();
    display.startOnePage(recordings);
    display.startPlot(recordings);
    expectRange(0, 9);
    EXPECT_FALSE(display.gZoomFlag());
    EXPECT_FALSE(display.zoomed());
    EXPECT_FALSE(display.spanSelected());
    EXPECT_FALSE(display.onePage());
    EXPECT_FALSE(display.powerView());
    EXPECT_FALSE(display.plotRequest(recordings).zoom);
}

TEST_F(DisplayOf, PressAndReleaseMarkReadingsOfTheFile) {
    addFile(recordings, "a.dat", ramp(10));
    const Plot plot = viewPlot();
    display.markStart(plot, 2);
    EXPECT_FALSE(display.spanSelected());
    display.markEnd(plot, 5);
    EXPECT_TRUE(display.spanSelected());
    EXPECT_EQ(display.span(), (Range{2, 5}));
    EXPECT_TRUE(title().ends_with("\r\nSelected:   14:30  Mar 15, 24   to   15:15  Mar 15, 24"));
}

TEST_F(DisplayOf, DraggingToTheLeftMarksTheSameSpan) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), 5, 2);
    EXPECT_EQ(display.span(), (Range{2, 5}));
}

TEST_F(DisplayOf, ReleaseBeyondTheLastPointIsClampedToTheEnd) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), -3, 10000);
    EXPECT_EQ(display.span(), (Range{0, 9}));
}

TEST_F(DisplayOf, PointsOfTriplesMarkWholeTriplesInEitherDirection) {
    addFile(recordings, "g.dat", ramp(30), {.letter = 'g'});
    const Plot plot = viewPlot();
    for (const auto& [press, release] : {std::pair{2, 4}, {4, 2}}) {
        mark(plot, press, release);
        EXPECT_EQ(display.span(), (Range{6, 14}));
    }
    EXPECT_TRUE(title().ends_with("14:30  Mar 15, 24   to   15:00  Mar 15, 24"));
}

TEST_F(DisplayOf, ZoomNarrowsTheRangeToTheSpan) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), 2, 5);
    display.requestZoom();
    EXPECT_FALSE(display.spanSelected());
    EXPECT_TRUE(display.gZoomFlag());
    EXPECT_FALSE(display.zoomed()) << "not before the plot is drawn";
    const Plot plot = draw();
    expectRange(2, 5);
    EXPECT_EQ(plot.points, 4);
    EXPECT_EQ(plot.firstEntry, 2);
    EXPECT_TRUE(display.zoomed());
    EXPECT_FALSE(display.plotRequest(recordings).zoom);
}

TEST_F(DisplayOf, SpanOfTriplesTwoToFourZoomsToEntriesSixToFourteen) {
    addFile(recordings, "g.dat", ramp(30), {.letter = 'g'});
    mark(viewPlot(), 2, 4);
    const Plot plot = zoom();
    expectRange(6, 14);
    EXPECT_EQ(plot.points, 3);
    EXPECT_FLOAT_EQ(plot.series[0].values[0], 0.6F); // average of the first triple
    EXPECT_FLOAT_EQ(plot.series[2].values[2], 1.4F); // minimum of the last
}

TEST_F(DisplayOf, DragPastTheRightEdgeZoomsToTheLastReading) {
    addFile(recordings, "a.dat", constant(20, 55));
    mark(viewPlot(), 15, 25);
    const Plot plot = zoom();
    expectRange(15, 19);
    EXPECT_EQ(plot.series[0].values, std::vector<float>(5, 5.5F)); // no 0 at the end
    EXPECT_EQ(plot.extremeMin, 55);
}

TEST_F(DisplayOf, SecondZoomCountsFromTheZoomedRange) {
    addFile(recordings, "a.dat", ramp(100));
    mark(viewPlot(), 20, 59);
    mark(zoom(), 10, 19);
    EXPECT_EQ(display.span(), (Range{30, 39}));
    const Plot plot = zoom();
    expectRange(30, 39);
    EXPECT_FLOAT_EQ(plot.series[0].values[0], 3.0F);
}

TEST_F(DisplayOf, ZoomSkipsTheOddOldestEntries) {
    addFile(recordings, "g.dat", ramp(11), {.letter = 'g'}); // triples at 2, 5, 8
    const Plot whole = viewPlot();
    EXPECT_EQ(whole.points, 3);
    mark(whole, 1, 2);
    zoom();
    expectRange(5, 10);
}

TEST_F(DisplayOf, RedrawingKeepsTheZoomedRange) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), 2, 5);
    zoom();
    EXPECT_EQ(draw().points, 4);
    EXPECT_TRUE(display.zoomed());
}

TEST_F(DisplayOf, MarkingOnAnEmptyPlotStaysEmpty) {
    addFile(recordings, "g.dat", ramp(2), {.letter = 'g'});
    const Plot plot = viewPlot();
    EXPECT_EQ(plot.points, 0);
    mark(plot, 5, 7);
    EXPECT_EQ(zoom().points, 0);
}

TEST_F(DisplayOf, ShowAllLeavesTheZoomAndKeepsTheView) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPower(), 2, 5);
    zoom();
    display.showAll(recordings);
    expectRange(0, 9);
    EXPECT_FALSE(display.zoomed());
    EXPECT_TRUE(display.powerView());
}

TEST_F(DisplayOf, GivenRangeCountsAsMarkedAndApplied) {
    addFile(recordings, "a.dat", ramp(10));
    EXPECT_TRUE(display.applyRange(recordings, 3, 6));
    EXPECT_TRUE(display.zoomed());
    EXPECT_TRUE(display.gZoomFlag());
    expectRange(3, 6);
    EXPECT_EQ(draw().points, 4);
}

TEST_F(DisplayOf, RefusedRangeChangesNothing) {
    display.opened(recordings, addFile(recordings, "a.dat", ramp(10)));
    EXPECT_FALSE(display.applyRange(recordings, 6, 10));
    EXPECT_FALSE(display.zoomed());
    expectRange(0, 9);
}

TEST_F(DisplayOf, PartOfAFileIsItsWholeTriplesOrItsPartOfTheZoom) {
    addFile(recordings, "g.dat", ramp(10), {.letter = 'g'}); // triples at 1, 4, 7
    addFile(recordings, "h.dat", ramp(6), {.letter = 'g'});  // triples at 0, 3
    EXPECT_EQ(display.part(recordings, 0).value(), (Range{1, 9}));
    EXPECT_EQ(display.part(recordings, 1).value(), (Range{0, 5}));
    EXPECT_EQ(display.readings(recordings, 0).value(), (Range{0, 9})) << "what is over goes along";
    mark(viewPlot(), 1, 2);
    zoom();
    EXPECT_EQ(display.part(recordings, 0).value(), (Range{4, 9}));
    EXPECT_EQ(display.part(recordings, 1).value(), (Range{3, 5})) << "cut to the shorter file";
    EXPECT_EQ(display.readings(recordings, 1).value(), (Range{3, 5}));
}

TEST_F(DisplayOf, WithoutAZoomAFileIsTakenWholeWhateverTheFirstCovers) {
    addFile(recordings, "long.dat", ramp(96));
    display.opened(recordings, addFile(recordings, "short.dat", ramp(2)));
    EXPECT_EQ(display.readings(recordings, 0).value(), (Range{0, 95}));
    EXPECT_EQ(display.readings(recordings, 1).value(), (Range{0, 1}));
    EXPECT_EQ(display.part(recordings, 0).value(), (Range{0, 95}));
}

TEST_F(DisplayOf, ZoomThatAShorterFileDoesNotReachIsRefused) {
    addFile(recordings, "/d/a.dat", ramp(10));
    addFile(recordings, "/d/b.dat", ramp(4));
    mark(viewPlot(), 5, 8);
    zoom();
    for (const auto& refused : {display.part(recordings, 1), display.readings(recordings, 1)}) {
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().text, "The zoomed range holds no reading of this file. Nothing was done.");
        EXPECT_EQ(refused.error().subject, "/d/b.dat");
        EXPECT_EQ(refused.error().advice,
                  "The range is 15:15  Mar 15, 24 to 16:00  Mar 15, 24 of a.dat. Show all "
                  "readings first, or choose another file.");
    }
    EXPECT_TRUE(display.part(recordings, 0));
}

TEST_F(DisplayOf, ScaleTakesAWholeNumberForOneDataPlot) {
    addFile(recordings, "a.dat", constant(3, 500));
    viewPlot();
    display.setScale("12.5");
    EXPECT_EQ(draw().yMin, 12);
    EXPECT_EQ(draw().yMin, 45);
}

TEST_F(DisplayOf, ScaleRefusesWhatIsNoNumber) {
    addFile(recordings, "a.dat", constant(3, 500));
    for (const char* answer : {"", "abc", "12 amps"}) {
        try {
            display.setScale(answer);
            ADD_FAILURE() << answer;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 13);
        }
    }
    EXPECT_THROW(display.setScale("32768"), Fault);
    EXPECT_FALSE(display.plotRequest(recordings).yMinimum);
}

TEST_F(DisplayOf, PowerPlotShowsTheWholeFileAndBecomesTheView) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPlot(), 2, 4);
    zoom();
    display.setScale("7");
    EXPECT_EQ(viewPower().points, 10);
    expectRange(0, 9);
    EXPECT_TRUE(display.powerView());
    EXPECT_EQ(display.view(), View::powerPlot);
    viewPlot();
    EXPECT_FALSE(display.powerView());
    EXPECT_EQ(display.view(), View::dataPlot);
}

TEST_F(DisplayOf, OnePagePlotDropsTheMarkAndShowsTheWholeRange) {
    addFile(recordings, "a.dat", ramp(10));
    mark(viewPower(), 2, 5);
    mark(zoom(), 1, 1);
    display.startOnePage(recordings);
    EXPECT_TRUE(display.onePage());
    EXPECT_FALSE(display.spanSelected());
    EXPECT_TRUE(display.powerView()) << "the power plot stays the current view";
    EXPECT_EQ(drawPower().points, 10);
    EXPECT_TRUE(display.onePage());
    display.startPlot(recordings);
    EXPECT_FALSE(display.onePage());
}

TEST_F(DisplayOf, AfterAnExportNothingIsExportableUntilAViewIsShown) {
    addFile(recordings, "a.dat", ramp(10));
    display.tableShown(View::table, 0, {"heading", "text"});
    EXPECT_EQ(display.exportable(), View::table);
    EXPECT_EQ(display.gTable(), "text");
    display.exported();
    EXPECT_EQ(display.exportable(), View::none);
    EXPECT_EQ(display.view(), View::table) << "it stands on the screen all the same";
    draw();
    EXPECT_EQ(display.exportable(), View::dataPlot);
}

TEST_F(DisplayOf, FixedTexts) {
    EXPECT_EQ(scalePrompt, "Enter min value for Y Scale");
    EXPECT_EQ(onePageButton, "print on one page");
    EXPECT_EQ(onePageLabel, "\r\nONE PAGE PLOT IS ENABLED\r\nClick the Print Icon to print this report");
}

} // namespace
} // namespace tally
