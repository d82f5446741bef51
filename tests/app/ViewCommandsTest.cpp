// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "view/forms/ChartToolBar.h"
#include "view/forms/DisplaySel.h"

#include <QAccessible>
#include <QClipboard>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::WindowTest;

// Ten intervals of average, maximum, minimum in whole amps: 20+k, 40+k, 10+k.
std::vector<int> tenTriples() {
    std::vector<int> tenths;
    for (int k = 0; k < 10; ++k)
        for (const int amps : {20 + k, 40 + k, 10 + k})
            tenths.push_back(amps * 10);
    return tenths;
}

std::vector<int> ramp(int count) {
    std::vector<int> tenths;
    for (int i = 0; i < count; ++i)
        tenths.push_back((100 + i) * 10);
    return tenths;
}

std::vector<int> readings(const Recordings& recordings, int slot) {
    const auto& all = recordings.gReadings[std::size_t(slot)];
    return {all.begin(), all.end()};
}

class ViewCommands : public WindowTest {};

TEST_F(ViewCommands, OpeningShowsTheSummaryAndEnablesTheViews) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    EXPECT_EQ(window.screen().page(), Screen::Page::text);
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("    File:     /d/a.dat"));
    EXPECT_EQ(display.view(), View::summary);
    EXPECT_EQ(display.gDatastart(), 0);
    EXPECT_EQ(display.gdataend(), 19);
    EXPECT_TRUE(enabled("mnuView"));
    EXPECT_TRUE(enabled("mnuItemSave"));
    EXPECT_TRUE(enabled("pwrview"));
    EXPECT_FALSE(enabled("mnuZoom"));
    EXPECT_THAT(window.windowTitle().toStdString(), HasSubstr("a.dat"));
}

TEST_F(ViewCommands, ViewPlotDrawsTheWholeFileAndEnablesWhatNeedsAPlot) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    EXPECT_EQ(window.screen().page(), Screen::Page::chart);
    EXPECT_EQ(window.screen().chart().plot().points, 20);
    EXPECT_EQ(display.view(), View::dataPlot);
    for (const char* name : {"mnuItemScale", "mnuItemAnnot", "mnuItemOnepgPlot", "mnuItemRefresh"})
        EXPECT_TRUE(enabled(name)) << name;
    EXPECT_FALSE(enabled("mnuZoom"));
}

TEST_F(ViewCommands, MarkedSpanIsNamedInTheTitleAndEnablesZoom) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 9);
    EXPECT_THAT(window.screen().chart().plot().title, HasSubstr("Selected:   "));
    EXPECT_TRUE(enabled("mnuZoom"));
    EXPECT_EQ(display.gDatastart(), 0);
    click("mnuZoom");
    EXPECT_EQ(display.gDatastart(), 5);
    EXPECT_EQ(display.gdataend(), 9);
    EXPECT_TRUE(display.zoomed());
    EXPECT_TRUE(display.gZoomFlag());
    EXPECT_FALSE(enabled("mnuZoom"));
    EXPECT_EQ(window.screen().chart().plot().points, 5);
}

TEST_F(ViewCommands, ViewPlotAfterAZoomShowsEverythingAgain) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 9);
    click("mnuZoom");
    click("mnuItemViewPlot");
    EXPECT_EQ(display.gdataend(), 19);
    EXPECT_FALSE(display.gZoomFlag());
    EXPECT_FALSE(display.zoomed());
}

TEST_F(ViewCommands, RefreshDrawsTheZoomedRangeAgain) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 9);
    click("mnuZoom");
    click("mnuItemViewTable");
    click("mnuItemRefresh");
    EXPECT_EQ(window.screen().page(), Screen::Page::chart);
    EXPECT_EQ(window.screen().chart().plot().points, 5);
}

TEST_F(ViewCommands, ZoomedMinMaxAvgSpanSavedAndReopenedHoldsWholeTriples) {
    open("/d/g.dat", dataFile('g', tenTriples()));
    ASSERT_EQ(readings(recordings, 0), tenTriples());
    click("mnuItemViewPlot");
    mark(2, 4);
    click("mnuZoom");
    EXPECT_EQ(display.gDatastart(), 6);
    EXPECT_EQ(display.gdataend(), 14);
    prompt.files.push_back("/d/part.dat");
    click("mnuItemSave");
    click("mnuItemClose");
    prompt.files.push_back("/d/part.dat");
    click("mnuItemOpen");
    const auto all = tenTriples();
    EXPECT_EQ(readings(recordings, 0), std::vector<int>(all.begin() + 6, all.begin() + 15));
}

TEST_F(ViewCommands, DragPastTheRightEdgeEndsAtTheLastReading) {
    window.show();
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    Chart& chart = window.screen().chart();
    const QPoint from(chart.width() / 2, chart.height() / 2);
    QTest::mousePress(&chart, Qt::LeftButton, {}, from);
    QTest::mouseMove(&chart, QPoint(chart.width() + 80, from.y()));
    QTest::mouseRelease(&chart, Qt::LeftButton, {}, QPoint(chart.width() + 80, from.y()));
    ASSERT_TRUE(enabled("mnuZoom"));
    click("mnuZoom");
    EXPECT_EQ(display.gdataend(), 19);
    EXPECT_GT(display.gDatastart(), 0);
    const auto& values = window.screen().chart().plot().series.at(0).values;
    EXPECT_EQ(values.back(), 119.0F);
    EXPECT_EQ(*std::min_element(values.begin(), values.end()), float(100 + display.gDatastart()));
    EXPECT_EQ(window.screen().chart().plot().extremeMin, (100 + display.gDatastart()) * 10);
}

TEST_F(ViewCommands, KeysMoveThePictureButNotTheRange) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    Chart& chart = window.screen().chart();
    const auto width = [&chart] { return chart.visiblePoints().second - chart.visiblePoints().first; };
    const double whole = width();
    QTest::keyClick(&chart, Qt::Key_Plus);
    EXPECT_LT(width(), whole);
    const double left = chart.visiblePoints().first;
    QTest::keyClick(&chart, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(chart.visiblePoints().first, left);
    QTest::keyClick(&chart, Qt::Key_Minus);
    EXPECT_EQ(display.gDatastart(), 0);
    EXPECT_EQ(display.gdataend(), 19);
}

TEST_F(ViewCommands, ShortcutsStandWhereUsersLookForThem) {
    EXPECT_EQ(item("mnuItemOpen").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
    EXPECT_EQ(item("mnuItemSave").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    EXPECT_EQ(item("mnuItemRefresh").shortcut(), QKeySequence(Qt::Key_F5));
    EXPECT_EQ(item("mnuItemHelp").shortcut(), QKeySequence(Qt::Key_F1));
    for (const auto& [name, key] : {std::pair{"printShown", Qt::Key_P}, std::pair{"copyShown", Qt::Key_C},
                                    std::pair{"undoForced", Qt::Key_Z}})
        EXPECT_EQ(window.findChild<QAction*>(QString::fromLatin1(name))->shortcut(),
                  QKeySequence(Qt::CTRL | key));
}

TEST_F(ViewCommands, CopyTakesTheTextOrThePicture) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    window.findChild<QAction*>(QStringLiteral("copyShown"))->trigger();
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), HasSubstr("/d/a.dat"));
    click("mnuItemViewPlot");
    window.findChild<QAction*>(QStringLiteral("copyShown"))->trigger();
    const Chart& chart = window.screen().chart();
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), chart.size() * chart.devicePixelRatioF());
}

TEST_F(ViewCommands, PointerOverTheChartReadsTimeAndValue) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    auto* time = window.findChild<QLabel*>(QStringLiteral("PanelTime"));
    auto* value = window.findChild<QLabel*>(QStringLiteral("PanelValue"));
    Q_EMIT window.screen().chart().pointerMoved(3);
    EXPECT_EQ(time->text().toStdString(), screenTime(timeOf(recordings.gInfo[0], 3)));
    EXPECT_EQ(value->text().toStdString(), "103.0 A");
    Q_EMIT window.screen().chart().pointerMoved(-1);
    EXPECT_EQ(time->text(), QString());
    EXPECT_EQ(value->text(), QString());
}

TEST_F(ViewCommands, ScaleHoldsForOneRedraw) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    const double usual = window.screen().chart().plot().yMin;
    prompt.inputs.push_back("7");
    click("mnuItemScale");
    EXPECT_EQ(prompt.asked.back().text, "Enter min value for Y Scale");
    EXPECT_EQ(window.screen().chart().plot().yMin, 7);
    click("mnuItemRefresh");
    EXPECT_EQ(window.screen().chart().plot().yMin, usual);
}

TEST_F(ViewCommands, ScaleOfNoNumberIsATypeMismatchAndChangesNothing) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 9);
    const double usual = window.screen().chart().plot().yMin;
    prompt.inputs = {"low", "40000"};
    click("mnuItemScale");
    click("mnuItemScale");
    const std::string allowed = "\r\nThe y axis can begin at a whole number from -32768 to 32767.";
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 13: Type mismatch\r\nlow" + allowed,
                                            "Error number 6: Overflow\r\n40000" + allowed));
    EXPECT_EQ(prompt.shown.back().title, "Tallyline");
    EXPECT_EQ(window.screen().chart().plot().yMin, usual);
    click("mnuZoom");
    EXPECT_EQ(display.gDatastart(), 5);
}

TEST_F(ViewCommands, OnePagePlotShowsItsLabelAndTurnsZoomOff) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 9);
    click("mnuItemOnepgPlot");
    EXPECT_TRUE(display.onePage());
    EXPECT_FALSE(enabled("mnuZoom"));
    EXPECT_EQ(window.screen().chartBar().print->text(), QStringLiteral("print on one page"));
    click("mnuItemViewPlot");
    EXPECT_FALSE(display.onePage());
    EXPECT_NE(window.screen().chartBar().print->text(), QStringLiteral("print on one page"));
}

TEST_F(ViewCommands, OnePagePlotOfAZoomedSpanShowsTheWholeRecording) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 9);
    click("mnuZoom");
    EXPECT_EQ(display.gDatastart(), 5);
    click("mnuItemOnepgPlot");
    EXPECT_EQ(display.gDatastart(), 0);
    EXPECT_EQ(display.gdataend(), 19);
    EXPECT_EQ(window.screen().chart().plot().points, 20);
    EXPECT_FALSE(display.zoomed());
}

TEST_F(ViewCommands, SeveralMinMaxAvgFilesAskWhichStatistic) {
    open("/d/g.dat", dataFile('g', tenTriples()));
    open("/d/h.dat", dataFile('g', tenTriples()));
    whenOpen<DisplaySel>([](DisplaySel& form) {
        for (auto* option : form.findChildren<QRadioButton*>())
            if (option->text() == QStringLiteral("Minimum"))
                option->click();
        form.findChild<QPushButton*>()->click();
    });
    click("mnuItemViewPlot");
    EXPECT_THAT(window.screen().chart().plot().title, HasSubstr("Data Displayed: MINIMUM"));
    EXPECT_EQ(window.screen().chart().plot().series.at(0).values.at(0), 10.0F);
}

TEST_F(ViewCommands, TableShowsTheChosenFile) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    open("/d/b.dat", dataFile('a', ramp(9)));
    chooser.answers = {1};
    click("mnuItemViewTable");
    EXPECT_THAT(chooser.pendingCommands, ElementsAre(pending::table));
    EXPECT_EQ(recordings.ginx, 1);
    EXPECT_EQ(display.view(), View::table);
    EXPECT_EQ(window.screen().text().heading(),
              QStringLiteral(" Time     Date                            Eight readings of average"));
    EXPECT_EQ(window.screen().displaying(), "table of b.dat");
}

TEST_F(ViewCommands, CancelledListEndsTheCommandQuietly) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    open("/d/b.dat", dataFile('a', ramp(9)));
    for (const char* name : {"mnuItemViewTable", "mnuItemViewsummary", "mnuItemSave", "mnuItemNotes",
                             "mnuItemPrintTable", "mnuItemPrintSum"}) {
        chooser.answers = {Recordings::cancelled};
        click(name);
        EXPECT_EQ(recordings.ginx, Recordings::cancelled) << name;
        EXPECT_TRUE(prompt.shown.empty()) << name;
    }
    EXPECT_EQ(window.screen().displaying(), "summary of b.dat");
}

TEST_F(ViewCommands, CommandsWithoutAFileSayTheirOwnWords) {
    // The menu has them disabled now.
    for (const char* name : {"mnuItemViewTable", "mnuItemViewsummary", "mnuItemViewPlot"})
        Q_EMIT item(name).triggered();
    click("mnuItemPrintSum");
    click("mnuItemForceRdg");
    click("mnuItemNotes");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error - No file available. Need to open a file",
                                            "Error - No file available. Need to open a file.",
                                            "Error - No file available. Need to open a file.",
                                            "Error - No file available.  Need to open a file.",
                                            "Error - No file available. Need to open a file.",
                                            "Error - No file available. Need to open a file."));
}

TEST_F(ViewCommands, OpeningAnotherFileAfterAMarkZoomsToTheWholeFileAndSavesAllOfIt) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 5);
    open("/d/b.dat", dataFile('a', ramp(20)));
    click("mnuItemRefresh");
    EXPECT_EQ(window.screen().chart().plot().points, 20);
    item("mnuZoom").setEnabled(true);
    click("mnuZoom");
    EXPECT_EQ(window.screen().chart().plot().points, 20);
    chooser.answers = {0};
    prompt.files.push_back("/d/out.dat");
    click("mnuItemSave");
    EXPECT_THAT(files.contents["/d/out.dat"], HasSubstr(" 119 118"));
    EXPECT_THAT(files.contents["/d/out.dat"], HasSubstr(" 101 100\x1a"));
}

TEST_F(ViewCommands, RefreshKeepsTheStatisticThatWasChosen) {
    open("/d/g.dat", dataFile('g', tenTriples()));
    open("/d/h.dat", dataFile('g', tenTriples()));
    whenOpen<DisplaySel>([](DisplaySel& form) {
        form.findChild<QRadioButton*>(QStringLiteral("Option2"))->click();
        form.accept();
    });
    click("mnuItemViewPlot");
    const std::string title = window.screen().chart().plot().title;
    const std::string first = title.substr(0, title.find("\r\n"));
    open("/d/i.dat", dataFile('g', tenTriples()));
    click("mnuItemRefresh");
    EXPECT_THAT(window.screen().chart().plot().title, ::testing::StartsWith(first));
    EXPECT_NE(first, "Data Displayed: AVERAGE");
}

TEST_F(ViewCommands, WhileAPartIsShownTheButtonsSayWhichAndShowAllLeavesIt) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    auto* all = window.findChild<QAction*>(QStringLiteral("chartShowAll"));
    auto* bar = window.findChild<QToolBar*>(QStringLiteral("ViewToolBar"));
    auto* part = bar->findChild<QLabel*>(QStringLiteral("partShown"));
    EXPECT_FALSE(all->isVisible());
    mark(5, 9);
    click("mnuZoom");
    EXPECT_TRUE(all->isVisible());
    EXPECT_EQ(part->text(), QStringLiteral("readings 6 to 10 of 20"));
    click("mnuItemViewTable");
    auto* textAll = window.findChild<QAction*>(QStringLiteral("textShowAll"));
    EXPECT_TRUE(textAll->isVisible());
    textAll->trigger();
    EXPECT_FALSE(display.zoomed());
    EXPECT_FALSE(textAll->isVisible());
    EXPECT_EQ(display.view(), View::table);
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("    119 "));
}

TEST_F(ViewCommands, WholeLeavesTheZoom) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    mark(5, 9);
    click("mnuZoom");
    window.screen().chartBar().reset->trigger();
    EXPECT_FALSE(display.zoomed());
    EXPECT_EQ(window.screen().chart().plot().points, 20);
}

TEST_F(ViewCommands, ZoomThatAShorterFileDoesNotReachIsSaidByEveryCommand) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    open("/d/b.dat", dataFile('a', ramp(4)));
    click("mnuItemViewPlot");
    mark(5, 9);
    click("mnuZoom");
    for (const char* name :
         {"mnuItemViewTable", "mnuItemViewsummary", "mnuItemSave", "mnuItemPrintTable", "mnuItemPrintSum"}) {
        chooser.answers = {1};
        prompt.shown.clear();
        click(name);
        ASSERT_EQ(prompt.shown.size(), 1U) << name;
        EXPECT_THAT(prompt.shown[0].text,
                    ::testing::StartsWith("The zoomed range holds no reading of this file."))
            << name;
        EXPECT_EQ(window.screen().page(), Screen::Page::chart) << name;
    }
    recordings.ginx = 1;
    prompt.shown.clear();
    click("mnuItemForceRdg");
    EXPECT_EQ(prompt.shown.size(), 1U);
    EXPECT_FALSE(recordings.info(1).forced);
}

TEST_F(ViewCommands, FilesThatStartApartOrDifferInUnitAreSaidInANotice) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    EXPECT_FALSE(window.notices().has(QStringLiteral("together")));
    open("/d/b.dat", dataFile('a', ramp(20), 'V', false, "03-16-24 12:00"));
    EXPECT_EQ(window.notices().text(QStringLiteral("together")).toStdString(),
              "b.dat starts 26 h after a.dat; readings are combined by number, not by time. Different units: "
              "a.dat is in amps, b.dat in volts.");
    click("mnuItemViewPlot");
    EXPECT_EQ(window.screen().chart().plot().yTitle, "AMPS, VOLTS");
    click("mnuItemClose");
    EXPECT_FALSE(window.notices().has(QStringLiteral("together")));
}

TEST_F(ViewCommands, VoltageFileDisablesThePowerViews) {
    open("/d/v.dat", dataFile('a', ramp(20), 'V'));
    EXPECT_FALSE(enabled("pwrview"));
    EXPECT_FALSE(enabled("mnuItemViewPower"));
    EXPECT_FALSE(enabled("mnuItemPrintpwrSum"));
    EXPECT_FALSE(enabled("mnuItemPrintPwrTable"));
    EXPECT_TRUE(enabled("mnuItemViewpwrsummry"));
}

TEST_F(ViewCommands, EveryControlOfTheWindowHasANameForScreenReaders) {
    open("/d/a.dat", dataFile('a', ramp(20)));
    click("mnuItemViewPlot");
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(QStringLiteral("qt_")))
            continue;
        const QAccessibleInterface* face =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        ASSERT_NE(face, nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
}

} // namespace
} // namespace tally
