// SPDX-License-Identifier: GPL-3.0-or-later
// The Chart menu, the buttons of the views, the figures of a span, files by time.
#include "WindowTest.h"

#include "view/forms/ChartToolBar.h"
#include "view/forms/SpanPanel.h"

#include <QClipboard>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::WindowTest;

class NavigateTest : public WindowTest {
protected:
    // Whole amperes from 100 on, a quarter hour apart; the header's time lies one interval after the last.
    static std::vector<int> ramp(int count) {
        std::vector<int> tenths;
        for (int i = 0; i < count; ++i)
            tenths.push_back((100 + i) * 10);
        return tenths;
    }
    void openPlot(int count = 20) {
        open("/d/a.dat", dataFile('a', ramp(count)));
        click("mnuItemViewPlot");
    }
    Chart& chart() { return window.screen().chart(); }
    int points() { return chart().plot().points; }
    void zoomTo(int first, int last) {
        mark(first, last);
        click("mnuZoom");
    }
    QString cell(int row, int column = 0) {
        return window.findChild<QTableWidget*>(QStringLiteral("spanTable"))->item(row, column)->text();
    }
};

TEST_F(NavigateTest, NothingOfTheChartMenuWorksWithoutAFile) {
    for (const char* name :
         {"mnuItemBack", "mnuItemForward", "mnuItemShowAll", "mnuItemNextDay", "mnuItemEnlarge",
          "mnuItemFigures", "mnuItemFixedAxis", "mnuItemAlign", "mnuItemPicture", "mnuItemLine1"})
        EXPECT_FALSE(enabled(name)) << name;
}

TEST_F(NavigateTest, BackAndForwardGoThroughTheZooms) {
    openPlot();
    EXPECT_FALSE(enabled("mnuItemBack"));
    zoomTo(5, 14);
    zoomTo(2, 4);
    EXPECT_EQ(display.gDatastart(), 7);
    click("mnuItemBack");
    EXPECT_EQ(display.displayed(recordings), (Range{5, 14}));
    EXPECT_EQ(points(), 10);
    click("mnuItemBack");
    EXPECT_FALSE(display.zoomed());
    EXPECT_EQ(points(), 20);
    EXPECT_FALSE(enabled("mnuItemBack"));
    click("mnuItemForward");
    click("mnuItemForward");
    EXPECT_EQ(display.displayed(recordings), (Range{7, 9}));
    EXPECT_FALSE(enabled("mnuItemForward"));
    click("mnuItemShowAll");
    EXPECT_EQ(points(), 20);
}

TEST_F(NavigateTest, BackInATableShowsTheTableOfTheRangeBefore) {
    openPlot();
    zoomTo(5, 14);
    zoomTo(2, 4);
    click("mnuItemViewTable");
    click("mnuItemBack");
    EXPECT_EQ(display.view(), View::table);
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("105"));
}

TEST_F(NavigateTest, DaysAreShownOneAfterTheOther) {
    openPlot(200); // to 03-15 10:00, from 03-13 on
    click("mnuItemNextDay");
    const auto timeOfPoint = [this](int point) {
        return screenTime(timeOf(recordings.info(0), chart().plot().firstEntry + point));
    };
    click("mnuItemNextDay");
    EXPECT_EQ(points(), 96);
    EXPECT_EQ(timeOfPoint(0).substr(0, 5), "00:00");
    EXPECT_EQ(timeOfPoint(95).substr(0, 5), "23:45");
    click("mnuItemNextDay");
    const Range last = display.displayed(recordings);
    EXPECT_EQ(last.last, 199);
    click("mnuItemNextDay");
    EXPECT_EQ(display.displayed(recordings), last);
    EXPECT_EQ(remark(), QStringLiteral("There are no readings after this."));
    EXPECT_TRUE(prompt.shown.empty());
    click("mnuItemPreviousDay");
    EXPECT_EQ(points(), 96);
}

TEST_F(NavigateTest, KeysMarkZoomAndLeave) {
    openPlot();
    QTest::keyClick(&chart(), Qt::Key_Right);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&chart(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_THAT(chart().plot().title, HasSubstr("Selected:"));
    EXPECT_EQ(display.span().entries(), 4);
    QTest::keyClick(&chart(), Qt::Key_Return);
    EXPECT_EQ(points(), 4);
    QTest::keyClick(&chart(), Qt::Key_Escape);
    EXPECT_EQ(points(), 20);
}

TEST_F(NavigateTest, EscapeGivesTheMarkUpInTheTitleToo) {
    openPlot();
    mark(5, 9);
    chart().markSpan(5, 9);
    QTest::keyClick(&chart(), Qt::Key_Escape);
    EXPECT_THAT(chart().plot().title, ::testing::Not(HasSubstr("Selected:")));
    EXPECT_FALSE(enabled("mnuZoom"));
    EXPECT_EQ(display.span(), (Range{0, 19}));
}

TEST_F(NavigateTest, TheNearestReadingIsToldWithItsName) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    open("/d/b.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    auto* value = window.findChild<QLabel*>(QStringLiteral("PanelValue"));
    Q_EMIT chart().pointerMoved(3, 1);
    EXPECT_EQ(value->text(), QStringLiteral("b.dat  103.0 A"));
    Q_EMIT chart().pointerMoved(4, 0);
    EXPECT_EQ(value->text(), QStringLiteral("a.dat  104.0 A"));
}

TEST_F(NavigateTest, ButtonsShowTheViews) {
    openPlot();
    const auto press = [this](const char* name) {
        window.findChild<QAction*>(QString::fromLatin1(name))->trigger();
    };
    press("chartTable");
    EXPECT_EQ(display.view(), View::table);
    press("textSummary");
    EXPECT_EQ(display.view(), View::summary);
    prompt.inputs.push_back("13800");
    press("textPower");
    EXPECT_EQ(display.view(), View::powerPlot);
    press("chartPlot");
    EXPECT_EQ(display.view(), View::dataPlot);
}

TEST_F(NavigateTest, FiguresFollowTheSpanAndCanBeCopied) {
    openPlot();
    click("mnuItemFigures");
    EXPECT_TRUE(item("mnuItemFigures").isChecked());
    EXPECT_EQ(cell(0), QStringLiteral("100.0 A")); // the first of all
    chart().markSpan(4, 8);
    EXPECT_EQ(cell(0), QStringLiteral("104.0 A"));
    EXPECT_EQ(cell(2), QStringLiteral("4.0 A"));
    EXPECT_EQ(cell(7), QStringLiteral("106.0 A"));
    window.findChild<QPushButton*>(QStringLiteral("spanCopy"))->click();
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), HasSubstr("Mean\t106.0 A"));
    window.findChild<QPushButton*>(QStringLiteral("spanClose"))->click();
    EXPECT_FALSE(item("mnuItemFigures").isChecked());
}

TEST_F(NavigateTest, FiguresOfAPowerPlotNameTheEnergy) {
    openPlot(5);
    prompt.inputs.push_back("10000");
    click("mnuItemViewPower");
    click("mnuItemFigures");
    chart().markSpan(0, 2);
    EXPECT_EQ(cell(9), QStringLiteral("508 KWHR")); // (1010 + 1020) / 4 = 507.5
}

// Kilowatts of a power factor of 1e37 are more than single precision holds.
TEST_F(NavigateTest, FiguresThatOverflowAreSaidWhereTheyWouldStand) {
    openPlot(5);
    prompt.inputs.push_back("13800");
    click("mnuItemViewPower");
    click("mnuItemFigures");
    prompt.inputs.push_back("1e37");
    click("mnuItemPF");
    const auto* panel = window.findChild<QTableWidget*>(QStringLiteral("spanTable"));
    EXPECT_EQ(panel->columnCount(), 0);
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 6: Overflow"));
    prompt.inputs.push_back("1");
    click("mnuItemPF");
    EXPECT_EQ(cell(9), QStringLiteral("1,415 KWHR")); // (101 + 102 + 103 + 104) / 4 A at 13.8 KV
}

TEST_F(NavigateTest, AFixedAxisHoldsUntilItIsReleased) {
    openPlot();
    prompt.inputs = {"0 to 400"};
    click("mnuItemFixedAxis");
    EXPECT_EQ(chart().plot().yMax, 400);
    click("mnuItemViewPlot");
    EXPECT_EQ(chart().plot().yMax, 400);
    prompt.inputs = {"400 to 0"};
    click("mnuItemFixedAxis");
    EXPECT_EQ(prompt.shown.size(), 1U);
    EXPECT_EQ(chart().plot().yMax, 400);
    prompt.inputs = {""};
    click("mnuItemFixedAxis");
    EXPECT_NE(chart().plot().yMax, 400);
    EXPECT_EQ(prompt.asked.back().preset, "0 to 400");
}

TEST_F(NavigateTest, LimitLinesAreDrawnUntilTheyAreTakenAway) {
    openPlot();
    prompt.inputs = {"150 Rating; 110"};
    click("mnuItemLimits");
    ASSERT_EQ(chart().plot().limits.size(), 2U);
    EXPECT_EQ(chart().plot().limits[0].label, "Rating 150 A");
    prompt.inputs = {""};
    click("mnuItemLimits");
    EXPECT_TRUE(chart().plot().limits.empty());
}

TEST_F(NavigateTest, LinesAreHiddenByMenu) {
    openPlot();
    EXPECT_TRUE(item("mnuItemLine1").isChecked());
    click("mnuItemLine1");
    EXPECT_TRUE(chart().lines().isHidden(0));
    EXPECT_FALSE(item("mnuItemLine1").isChecked());
    EXPECT_FALSE(enabled("mnuItemLine2"));
}

TEST_F(NavigateTest, LooksChangeThePictureOnly) {
    openPlot();
    click("mnuItemEnlarge");
    EXPECT_TRUE(chart().sight());
    click("mnuItemWholePicture");
    EXPECT_FALSE(chart().sight());
    EXPECT_FALSE(display.zoomed());
    click("mnuItemBox");
    EXPECT_TRUE(chart().boxMode());
    click("mnuItemBox");
    EXPECT_FALSE(chart().boxMode());
}

// b.dat ends two hours after a.dat; both have twenty readings.
class ByTimeTest : public NavigateTest {
protected:
    ByTimeTest() {
        open("/d/a.dat", dataFile('a', ramp(20)));
        open("/d/b.dat", dataFile('a', ramp(20), 'X', false, "03-15-24 12:00"));
        click("mnuItemViewPlot");
    }
    std::string notice() { return window.notices().text(QStringLiteral("together")).toStdString(); }
};

TEST_F(ByTimeTest, FilesAreCombinedByNumberUntilAsked) {
    EXPECT_EQ(points(), 20);
    EXPECT_THAT(notice(), HasSubstr("combined by number, not by time"));
    EXPECT_TRUE(enabled("mnuItemAlign"));
    EXPECT_FALSE(item("mnuItemAlign").isChecked());
}

TEST_F(ByTimeTest, ByTimeTheCommonTwelveReadingsStandTogether) {
    click("mnuItemAlign");
    EXPECT_TRUE(item("mnuItemAlign").isChecked());
    EXPECT_EQ(points(), 12);
    EXPECT_EQ(chart().plot().series[0].values.front(), 108);
    EXPECT_EQ(chart().plot().series[1].values.front(), 100);
    EXPECT_THAT(notice(), HasSubstr("combined by time"));
    EXPECT_THAT(remark().toStdString(), HasSubstr("combined by time"));
    click("mnuItemAlign");
    EXPECT_EQ(points(), 20);
}

TEST_F(ByTimeTest, ZoomTableSummaryAndPowerKeepToTheTime) {
    click("mnuItemAlign");
    zoomTo(2, 3);
    EXPECT_EQ(chart().plot().series[0].values.front(), 110);
    EXPECT_EQ(chart().plot().series[1].values.front(), 102);
    chooser.answers.push_back(1);
    click("mnuItemViewTable");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("102"));
    chooser.answers.push_back(1);
    click("mnuItemViewsummary");
    const std::string start = screenTime(timeOf(recordings.info(1), 2));
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("Selected:       Start  " + start));
    prompt.inputs.push_back("10000");
    click("mnuItemViewPower");
    EXPECT_EQ(points(), 12);
    EXPECT_EQ(chart().plot().series[0].values.front(), 2080); // 108 + 100 A at 10 KV
    click("mnuItemViewPwrTable");
    EXPECT_THAT(window.screen().text().text().toStdString(),
                HasSubstr(screenTime(timeOf(recordings.info(0), 8))));
}

TEST_F(ByTimeTest, TheNoticeNamesTheWholeCommonTimeWhateverIsZoomedTo) {
    zoomTo(10, 12);
    click("mnuItemAlign");
    const std::string common =
        screenTime(timeOf(recordings.info(1), 0)) + " to " + screenTime(timeOf(recordings.info(0), 19));
    EXPECT_EQ(notice(), "Readings are combined by time, " + common + ".");
    click("mnuItemShowAll");
    EXPECT_EQ(points(), 12);
    EXPECT_EQ(notice(), "Readings are combined by time, " + common + ".");
}

// Readings 1 to 3 of a.dat lie before b.dat starts.
TEST_F(ByTimeTest, BackPassesOverARangeOutsideTheCommonTime) {
    zoomTo(1, 3);
    click("mnuItemShowAll");
    zoomTo(10, 12);
    click("mnuItemAlign");
    for (int backs = 0; backs < 2; ++backs)
        click("mnuItemBack");
    EXPECT_FALSE(display.zoomed());
    EXPECT_EQ(points(), 12);
    EXPECT_FALSE(enabled("mnuItemBack"));
    click("mnuItemForward");
    EXPECT_FALSE(display.zoomed());
    click("mnuItemForward");
    EXPECT_EQ(display.displayed(recordings), (Range{10, 12}));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(ByTimeTest, ForwardToARangeOutsideTheCommonTimeSaysThatThereIsNone) {
    zoomTo(1, 3);
    click("mnuItemBack");
    click("mnuItemAlign");
    click("mnuItemForward");
    EXPECT_THAT(prompt.texts(), ElementsAre(HasSubstr("The files have no reading in common")));
    EXPECT_FALSE(display.zoomed());
    EXPECT_EQ(points(), 12);
}

TEST_F(ByTimeTest, TheTimeOfAllFilesIsNotTheCommonOne) {
    const std::string all = "All Files:  Start:  " + screenTime(timeOf(recordings.info(0), 0)) +
                            "                End:  " + screenTime(timeOf(recordings.info(1), 19)) + "\n";
    click("mnuItemAlign");
    prompt.inputs.push_back("10000");
    click("mnuItemViewpwrsummry");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr(all));
}

TEST_F(ByTimeTest, OpeningAFileEndsIt) {
    click("mnuItemAlign");
    open("/d/c.dat", dataFile('a', ramp(20)));
    EXPECT_FALSE(item("mnuItemAlign").isChecked());
    EXPECT_THAT(notice(), HasSubstr("combined by number"));
}

TEST_F(ByTimeTest, WithoutCommonTimeItIsRefused) {
    click("mnuItemClose");
    open("/d/a.dat", dataFile('a', ramp(20)));
    open("/d/b.dat", dataFile('a', ramp(20), 'X', false, "04-15-24 12:00"));
    click("mnuItemViewPlot");
    click("mnuItemAlign");
    EXPECT_EQ(prompt.shown.size(), 1U);
    EXPECT_FALSE(item("mnuItemAlign").isChecked());
    EXPECT_EQ(points(), 20);
}

} // namespace
} // namespace tally
