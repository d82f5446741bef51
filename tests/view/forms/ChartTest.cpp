// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/Chart.h"

#include "ChartSupport.h"

#include <QClipboard>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace tally {
namespace {

class ChartTest : public ::testing::Test {
protected:
    ChartTest() {
        chart.resize(900, 600);
        chart.showPlot(testing::samplePlot(1001));
        chart.show();
        QApplication::processEvents();
    }

    QPointF at(double point, double part = 0.5) const {
        const QRectF frame = chart.frame();
        const auto [from, to] = chart.visiblePoints();
        return {frame.left() + (point - from) / (to - from) * frame.width(),
                frame.top() + part * frame.height()};
    }

    void turnWheel(QPointF place, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWheelEvent event(place, chart.mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&chart, &event);
    }

    Chart chart;
};

TEST_F(ChartTest, HasItsNameAndIsReadOut) {
    EXPECT_EQ(chart.objectName(), QStringLiteral("ChartFX1"));
    EXPECT_FALSE(chart.accessibleName().isEmpty());
    EXPECT_EQ(chart.accessibleDescription(), QStringLiteral("Data Plot"));
}

TEST_F(ChartTest, PressAndReleaseMarkASpanOfPoints) {
    QSignalSpy started(&chart, &Chart::spanStarted);
    QSignalSpy ended(&chart, &Chart::spanEnded);
    testing::drag(chart, at(200), at(450));
    ASSERT_EQ(started.size(), 1);
    ASSERT_EQ(ended.size(), 1);
    EXPECT_EQ(started[0][0].toInt(), 200);
    EXPECT_EQ(ended[0][0].toInt(), 450);
    EXPECT_EQ(chart.span(), std::pair(200, 450));
}

TEST_F(ChartTest, ADragPastTheRightEdgeEndsAtTheLastPoint) {
    QSignalSpy ended(&chart, &Chart::spanEnded);
    testing::drag(chart, at(900), {chart.width() + 200.0, 300});
    ASSERT_EQ(ended.size(), 1);
    EXPECT_EQ(ended[0][0].toInt(), 1000);
}

TEST_F(ChartTest, ADragToTheLeftTellsPressAndReleaseAndShadesTheSpan) {
    QSignalSpy started(&chart, &Chart::spanStarted);
    QSignalSpy ended(&chart, &Chart::spanEnded);
    testing::drag(chart, at(700), {-50, 300});
    EXPECT_EQ(started[0][0].toInt(), 700);
    EXPECT_EQ(ended[0][0].toInt(), 0);
    EXPECT_EQ(chart.span(), std::pair(0, 700));
}

TEST_F(ChartTest, APressBesideTheFrameMarksNothing) {
    QSignalSpy started(&chart, &Chart::spanStarted);
    QSignalSpy ended(&chart, &Chart::spanEnded);
    testing::drag(chart, {3, 3}, at(500));
    EXPECT_EQ(started.size(), 0);
    EXPECT_EQ(ended.size(), 0);
}

TEST_F(ChartTest, APressBehindTheLastOfFewPointsMarksNothing) {
    chart.showPlot(testing::samplePlot(5)); // the nine labels reach to point 8
    QSignalSpy started(&chart, &Chart::spanStarted);
    testing::sendMouse(chart, QEvent::MouseButtonPress, at(7));
    EXPECT_EQ(started.size(), 0);
    EXPECT_EQ(chart.visiblePoints(), std::pair(0.0, 8.0));
}

TEST_F(ChartTest, TheMarkedSpanIsShaded) {
    const QColor before = chart.grab().toImage().pixelColor(at(300, 0.03).toPoint());
    chart.markSpan(200, 400);
    const QImage image = chart.grab().toImage();
    EXPECT_NE(image.pixelColor(at(300, 0.03).toPoint()), before);
    EXPECT_EQ(image.pixelColor(at(530, 0.03).toPoint()), before);
}

TEST_F(ChartTest, ARedrawWithinTheMarkKeepsShadingAndPicture) {
    chart.zoomIn();
    const auto seen = chart.visiblePoints();
    Plot marked = testing::samplePlot(1001);
    marked.title += "\r\nSelected:   now   to   then";
    QObject::connect(&chart, &Chart::spanEnded, &chart, [&] { chart.showPlot(marked); });
    testing::drag(chart, at(300), at(600));
    EXPECT_EQ(chart.span(), std::pair(300, 600));
    EXPECT_EQ(chart.visiblePoints(), seen);
    EXPECT_EQ(chart.plot().title, marked.title);
}

TEST_F(ChartTest, ANewPlotTakesSpanAndZoomAwayAndKeepsNotes) {
    chart.markSpan(10, 20);
    chart.addNote("storm");
    chart.zoomIn();
    chart.showPlot(testing::samplePlot(500));
    EXPECT_FALSE(chart.span());
    EXPECT_EQ(chart.visiblePoints(), std::pair(0.0, 499.0));
    EXPECT_EQ(chart.notes().size(), 1U);
}

TEST_F(ChartTest, EscapeGivesAMarkUp) {
    QSignalSpy ended(&chart, &Chart::spanEnded);
    testing::sendMouse(chart, QEvent::MouseButtonPress, at(200));
    QTest::keyClick(&chart, Qt::Key_Escape);
    testing::sendMouse(chart, QEvent::MouseButtonRelease, at(400));
    EXPECT_EQ(ended.size(), 0);
    EXPECT_FALSE(chart.span());
}

TEST_F(ChartTest, ThePointerTellsItsPointAndWhenItIsOffTheData) {
    QSignalSpy moved(&chart, &Chart::pointerMoved);
    testing::sendMouse(chart, QEvent::MouseMove, at(321), Qt::NoButton);
    testing::sendMouse(chart, QEvent::MouseMove, {4, 4}, Qt::NoButton);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&chart, &leave);
    ASSERT_EQ(moved.size(), 3);
    EXPECT_EQ(moved[0][0].toInt(), 321);
    EXPECT_EQ(moved[1][0].toInt(), -1);
    EXPECT_EQ(moved[2][0].toInt(), -1);
}

TEST_F(ChartTest, BetweenTheLastPointAndTheLastLabelIsOffTheData) {
    chart.showPlot(testing::samplePlot(3));
    QSignalSpy moved(&chart, &Chart::pointerMoved);
    testing::sendMouse(chart, QEvent::MouseMove, at(6), Qt::NoButton);
    EXPECT_EQ(moved[0][0].toInt(), -1);
}

TEST_F(ChartTest, TheWheelZoomsAroundThePointer) {
    turnWheel(at(250), 3);
    const auto [from, to] = chart.visiblePoints();
    EXPECT_NEAR(to - from, 1000 * 0.8 * 0.8 * 0.8, 0.5);
    EXPECT_NEAR(from + (to - from) * 250 / 1000, 250, 1); // it stays where it was
    turnWheel(at(250), -20);
    EXPECT_EQ(chart.visiblePoints(), std::pair(0.0, 1000.0)); // never beyond the whole
}

TEST_F(ChartTest, ShiftAndTheRightButtonMoveThePictureAndMarkNothing) {
    QSignalSpy started(&chart, &Chart::spanStarted);
    turnWheel(at(500), 5);
    const auto before = chart.visiblePoints();
    const double width = before.second - before.first;
    testing::drag(chart, at(before.first + width * 0.75), at(before.first + width * 0.5), Qt::RightButton);
    const auto moved = chart.visiblePoints();
    EXPECT_NEAR(moved.first, before.first + width * 0.25, 1);
    testing::drag(chart, at(moved.first + width * 0.5), at(moved.first + width * 0.75), Qt::LeftButton,
                  Qt::ShiftModifier);
    EXPECT_NEAR(chart.visiblePoints().first, before.first, 1);
    EXPECT_EQ(started.size(), 0);
    EXPECT_FALSE(chart.span());
}

TEST_F(ChartTest, KeysZoomAndMoveThePicture) {
    QTest::keyClick(&chart, Qt::Key_Plus);
    const auto zoomed = chart.visiblePoints();
    EXPECT_NEAR(zoomed.second - zoomed.first, 1000 * 0.8, 0.1);
    QTest::keyClick(&chart, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(chart.visiblePoints().first, zoomed.first);
    QTest::keyClick(&chart, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_NEAR(chart.visiblePoints().first, zoomed.first, 0.01);
    QTest::keyClick(&chart, Qt::Key_Minus);
    EXPECT_EQ(chart.visiblePoints(), std::pair(0.0, 1000.0));
    QTest::keyClick(&chart, Qt::Key_Plus);
    QTest::keyClick(&chart, Qt::Key_Home);
    EXPECT_EQ(chart.visiblePoints(), std::pair(0.0, 1000.0));
}

TEST_F(ChartTest, TheOnePageLabelSaysSo) {
    auto* label = chart.findChild<QLabel*>(QStringLiteral("onePageLabel"));
    ASSERT_NE(label, nullptr);
    EXPECT_FALSE(label->isVisible());
    chart.setOnePage(true);
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(label->text(),
              QStringLiteral("\nONE PAGE PLOT IS ENABLED\nClick the Print Icon to print this report"));
    chart.setOnePage(false);
    EXPECT_FALSE(label->isVisible());
}

TEST_F(ChartTest, ClearTakesEverythingAway) {
    chart.addNote("storm");
    chart.markSpan(1, 2);
    chart.clear();
    EXPECT_TRUE(chart.isEmpty());
    EXPECT_TRUE(chart.notes().empty());
    EXPECT_FALSE(chart.span());
    QSignalSpy started(&chart, &Chart::spanStarted);
    testing::drag(chart, {300, 300}, {500, 300});
    EXPECT_EQ(started.size(), 0);
    const QImage image = chart.grab().toImage();
    EXPECT_EQ(image.pixelColor(450, 300), chart.palette().color(QPalette::Base));
}

TEST_F(ChartTest, ADarkSchemeKeepsTextAndGroundApart) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::Text, Qt::white);
    chart.setPalette(dark);
    EXPECT_EQ(chart.grab().toImage().pixelColor(2, 2), QColor(30, 30, 32));
    // What is copied is on white all the same.
    EXPECT_EQ(chart.picture().pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(ChartTest, TheCopiedPictureIsAsLargeAsTheChart) {
    chart.copyPicture();
    const QImage copied = QApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), chart.size() * chart.devicePixelRatioF());
}

TEST_F(ChartTest, AScaleThatBeginsAboveTheReadingsIsShown) {
    Plot plot = testing::samplePlot(100);
    chart.showPlot(plot);
    const QImage usual = chart.grab().toImage();
    plot.yMin = 500;
    chart.showPlot(plot);
    EXPECT_NE(chart.grab().toImage(), usual);
}

TEST_F(ChartTest, ZoomedLabelsAreAskedForOnlyWithinTheData) {
    int minimum = 1000;
    int maximum = -1;
    chart.setTimeOf([&](int point) {
        minimum = std::min(minimum, point);
        maximum = std::max(maximum, point);
        return "MAY 01 00:00";
    });
    chart.grab();
    EXPECT_EQ(maximum, -1); // the whole plot has its nine labels
    turnWheel(at(1000), 4);
    chart.grab();
    EXPECT_GE(minimum, int(chart.visiblePoints().first));
    EXPECT_LE(maximum, 1000);
    EXPECT_GT(maximum, 0);
}

} // namespace
} // namespace tally
