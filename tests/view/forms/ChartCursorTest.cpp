// SPDX-License-Identifier: GPL-3.0-or-later
// Pointer, keyboard cursor, box and legend of the chart.
#include "view/forms/Chart.h"

#include "ChartSupport.h"
#include "view/forms/ChartLook.h"
#include "view/forms/SeriesPlottable.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace tally {
namespace {

// Three level lines at 30, 60 and 90 of an axis from 0 to 150.
Plot levels(int points) {
    Plot plot = testing::samplePlot(points, 3);
    for (int series = 0; series < 3; ++series)
        plot.series[std::size_t(series)].values.assign(std::size_t(points), float(30 * (series + 1)));
    return plot;
}

class ChartCursorTest : public ::testing::Test {
protected:
    ChartCursorTest() {
        chart.resize(900, 600);
        show(levels(101));
        chart.show();
        QApplication::processEvents();
    }

    void show(const Plot& plot) {
        shown = plot;
        chart.showPlot(plot);
    }

    // The place of a value of the axis 0 to 150 at a point.
    QPointF at(double point, double value) const {
        const QRectF frame = chart.frame();
        const auto [from, to] = chart.visiblePoints();
        return {frame.left() + (point - from) / (to - from) * frame.width(),
                frame.bottom() - value / 150 * frame.height()};
    }

    void point(QPointF place) { testing::sendMouse(chart, QEvent::MouseMove, place, Qt::NoButton); }

    int pixelsOf(const QColor& colour) {
        const QImage image = chart.grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == colour ? 1 : 0;
        return count;
    }

    Chart chart;
    Plot shown;
};

TEST_F(ChartCursorTest, ThePointerTellsTheNearestPointOfAnySeries) {
    QSignalSpy moved(&chart, &Chart::pointerMoved);
    for (const auto& [value, series] : {std::pair{28.0, 0}, {62.0, 1}, {140.0, 2}}) {
        point(at(40, value));
        EXPECT_EQ(moved.last()[0].toInt(), 40);
        EXPECT_EQ(moved.last()[1].toInt(), series) << value;
    }
}

TEST_F(ChartCursorTest, AHiddenLineIsNotUnderThePointer) {
    chart.toggleLine(1);
    QSignalSpy moved(&chart, &Chart::pointerMoved);
    point(at(40, 62));
    EXPECT_EQ(moved.last()[1].toInt(), 2); // 90 lies nearer to 62 than 30
}

TEST_F(ChartCursorTest, ALineThatHasEndedIsNotUnderThePointer) {
    Plot plot = levels(101);
    plot.series[1].present = 30;
    show(plot);
    QSignalSpy moved(&chart, &Chart::pointerMoved);
    point(at(29, 62));
    EXPECT_EQ(moved.last()[1].toInt(), 1);
    point(at(30, 62));
    EXPECT_EQ(moved.last()[1].toInt(), 2);
}

TEST_F(ChartCursorTest, WhereReadingsShareAColumnTheSpikeUnderThePointerIsTold) {
    Plot plot = levels(42966);
    plot.series[0].values[20007] = 120;
    show(plot);
    QSignalSpy moved(&chart, &Chart::pointerMoved);
    point(at(20007, 119));
    EXPECT_EQ(moved.last()[0].toInt(), 20007);
    EXPECT_EQ(moved.last()[1].toInt(), 0);
}

TEST_F(ChartCursorTest, ACrossAndAMarkOnEachLineFollowThePointer) {
    const QColor line = ChartLook::onPaper().line(2);
    const int before = pixelsOf(line);
    point(at(50, 20));
    EXPECT_GT(pixelsOf(line), before + 20);
    ASSERT_TRUE(chart.cursor());
    EXPECT_EQ(chart.cursor()->point, 50);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&chart, &leave);
    EXPECT_FALSE(chart.cursor());
    EXPECT_EQ(pixelsOf(line), before);
}

TEST_F(ChartCursorTest, MovingThePointerOverLongRecordingsStaysWithinAFrame) {
    show(testing::samplePlot(42966, 3));
    point(at(100, 50));
    chart.grab();
    QImage image(chart.size(), QImage::Format_RGB32);
    qint64 best = 1000;
    for (int turn = 0; turn < 5; ++turn) {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 10; ++i) {
            point(at(1000 + 300 * i, 60));
            chart.render(&image);
        }
        best = std::min(best, timer.elapsed() / 10);
    }
    EXPECT_LT(best, 16); // ms
}

TEST_F(ChartCursorTest, ArrowsStepReadingByReadingAndShiftMarks) {
    QSignalSpy moved(&chart, &Chart::pointerMoved);
    QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(moved.last()[0].toInt(), 50); // begins in the middle of 0 to 100
    QTest::keyClick(&chart, Qt::Key_Right);
    QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(moved.last()[0].toInt(), 52);
    QSignalSpy started(&chart, &Chart::spanStarted);
    QSignalSpy ended(&chart, &Chart::spanEnded);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&chart, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(chart.span(), std::pair(49, 52));
    EXPECT_EQ(started.last()[0].toInt(), 52);
    EXPECT_EQ(ended.last()[0].toInt(), 49);
    QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(chart.cursor()->point, 50);
    EXPECT_EQ(chart.span(), std::pair(49, 52)); // stays until the next mark
}

TEST_F(ChartCursorTest, TheCursorStopsAtTheEndsAndThePictureFollowsIt) {
    for (int i = 0; i < 8; ++i)
        chart.zoomIn();
    for (int i = 0; i < 120; ++i)
        QTest::keyClick(&chart, Qt::Key_Left);
    EXPECT_EQ(chart.cursor()->point, 0);
    EXPECT_EQ(chart.visiblePoints().first, 0);
}

TEST_F(ChartCursorTest, EnterAsksForTheZoomAndEscapeTakesOneThingAway) {
    QSignalSpy zoom(&chart, &Chart::zoomWanted);
    QSignalSpy left(&chart, &Chart::spanLeft);
    QSignalSpy leave(&chart, &Chart::leaveWanted);
    QTest::keyClick(&chart, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&chart, Qt::Key_Return);
    EXPECT_EQ(zoom.size(), 1);
    chart.zoomIn();
    QTest::keyClick(&chart, Qt::Key_Escape);
    EXPECT_FALSE(chart.cursor());
    EXPECT_FALSE(chart.span());
    EXPECT_EQ(left.size(), 1);
    EXPECT_EQ(leave.size(), 0);
    QTest::keyClick(&chart, Qt::Key_Escape);
    EXPECT_EQ(chart.visiblePoints(), std::pair(0.0, 100.0));
    EXPECT_EQ(leave.size(), 0);
    QTest::keyClick(&chart, Qt::Key_Escape);
    EXPECT_EQ(leave.size(), 1);
}

TEST_F(ChartCursorTest, PanningTellsWhatCameUnderThePointer) {
    for (int i = 0; i < 6; ++i)
        chart.zoomIn();
    point(chart.frame().center());
    const int before = chart.cursor()->point;
    QTest::keyClick(&chart, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(chart.cursor()->point, before);
}

TEST_F(ChartCursorTest, ABoxIsLookedAtClosely) {
    QSignalSpy started(&chart, &Chart::spanStarted);
    testing::drag(chart, at(20, 90), at(60, 30), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_NEAR(chart.visiblePoints().first, 20, 0.5);
    EXPECT_NEAR(chart.visiblePoints().second, 60, 0.5);
    ASSERT_TRUE(chart.sight());
    EXPECT_NEAR(chart.sight()->up.first, 30, 0.5);
    EXPECT_NEAR(chart.sight()->up.second, 90, 0.5);
    EXPECT_EQ(started.size(), 0);
}

TEST_F(ChartCursorTest, BoxModeHoldsForOneBox) {
    chart.setBoxMode(true);
    testing::drag(chart, at(20, 90), at(60, 30));
    EXPECT_NEAR(chart.visiblePoints().first, 20, 0.5);
    EXPECT_FALSE(chart.boxMode());
    chart.setBoxMode(true);
    QTest::keyClick(&chart, Qt::Key_Escape);
    EXPECT_FALSE(chart.boxMode());
}

// The legend's first entry stands at the left, above the frame.
TEST_F(ChartCursorTest, AClickOnTheLegendHidesALineAndShowsItAgain) {
    const QColor line = ChartLook::onPaper().line(0);
    const double above = chart.frame().top() - 10;
    const int before = pixelsOf(line);
    QSignalSpy changed(&chart, &Chart::linesChanged);
    QTest::mouseClick(&chart, Qt::LeftButton, {}, QPoint(30, int(above)));
    EXPECT_TRUE(chart.lines().isHidden(0));
    EXPECT_EQ(pixelsOf(line), 0);
    EXPECT_EQ(changed.size(), 1);
    ASSERT_TRUE(chart.sight()); // pictures and paper leave it out, too
    EXPECT_EQ(chart.sight()->hidden, std::vector<int>{0});
    QTest::mouseClick(&chart, Qt::LeftButton, {}, QPoint(30, int(above)));
    EXPECT_EQ(pixelsOf(line), before);
}

TEST_F(ChartCursorTest, TheLineWhoseNameIsPointedAtIsLifted) {
    const QColor line = ChartLook::onPaper().line(0);
    const int before = pixelsOf(line);
    point({30, chart.frame().top() - 10});
    EXPECT_EQ(chart.lines().lifted, 0);
    EXPECT_GT(pixelsOf(line), before * 3 / 2);
    point(at(50, 100));
    EXPECT_EQ(chart.lines().lifted, -1);
}

TEST_F(ChartCursorTest, HiddenLinesStayHiddenInTheNextPlotOfTheSameFiles) {
    chart.toggleLine(2);
    chart.showPlot(levels(50));
    EXPECT_TRUE(chart.lines().isHidden(2));
    chart.showPlot(testing::samplePlot(50, 2));
    EXPECT_FALSE(chart.lines().isHidden(2));
}

} // namespace
} // namespace tally
