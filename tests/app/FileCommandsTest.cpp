// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/TLY_File.h"

#include <QMimeData>
#include <QTest>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using testing::WindowTest;

const std::vector<int> fewReadings = {100, 200, 300, 400};

std::vector<std::string> mruShown(const TLY& window) {
    std::vector<std::string> shown;
    for (const QAction* action : window.findChildren<QAction*>(QStringLiteral("mnuMRU")))
        if (action->isVisible())
            shown.push_back(action->text().toStdString());
    return shown;
}

class FileCommands : public WindowTest {};

TEST_F(FileCommands, OpenDialogStartsInTheDefaultDirectoryWithItsFilter) {
    settings.set("Directory", "default", "/");
    prompt.files.push_back(std::nullopt);
    click("mnuItemOpen");
    EXPECT_EQ(prompt.filesAsked.back().filter, "data files (*.dat)|*.dat|All files (*.*)|*.*");
    EXPECT_EQ(prompt.filesAsked.back().folder, "/");
    EXPECT_FALSE(recordings.isOpen(0));
}

TEST_F(FileCommands, DefaultDirectoryThatIsGoneIsSaidQuietlyAndTheCurrentOneUsed) {
    settings.set("Directory", "default", "/no/such/folder");
    prompt.files.push_back(std::nullopt);
    click("mnuItemOpen");
    EXPECT_EQ(prompt.filesAsked.back().folder, "");
    EXPECT_THAT(window.notices().text(QStringLiteral("folder")).toStdString(), HasSubstr("/no/such/folder"));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(FileCommands, MissingFileIsSaidAndNothingChanges) {
    prompt.files.push_back("/d/gone.dat");
    click("mnuItemOpen");
    EXPECT_THAT(prompt.texts(), ElementsAre(StartsWith("File not found\r\n/d/gone.dat\r\n")));
    EXPECT_EQ(settings.get("Settings", "mrufile1"), "");
    EXPECT_FALSE(enabled("mnuView"));
}

TEST_F(FileCommands, FileWithoutItsEndMarkOpensWithANoticeThatStays) {
    const std::string whole = dataFile('a', fewReadings);
    open("/d/a.dat", whole.substr(0, whole.find('\x1a')));
    const QString key = QStringLiteral("incomplete");
    EXPECT_EQ(
        window.notices().text(key).toStdString(),
        "/d/a.dat: ends without its end mark; it may have been cut; 4 readings, the oldest number may be "
        "incomplete");
    click("mnuItemViewTable");
    EXPECT_TRUE(window.notices().has(key));
    EXPECT_TRUE(prompt.shown.empty());
    click("mnuItemClose");
    EXPECT_FALSE(window.notices().has(key));
}

TEST_F(FileCommands, RefusedFileChangesNeitherListNorMenusNorView) {
    open("/d/a.dat", dataFile('a', fewReadings));
    open("/d/f.dat", dataFile('f', fewReadings));
    open("/d/x.dat", "no recording at all");
    EXPECT_THAT(prompt.texts(), ElementsAre(StartsWith("Mode mixing not allowed\r\n/d/f.dat\r\n"),
                                            StartsWith("Error in processing file\r\n/d/x.dat\r\n")));
    EXPECT_EQ(recordings.openCount(), 1);
    EXPECT_THAT(mruShown(window), ElementsAre("/d/a.dat"));
    EXPECT_EQ(window.screen().displaying(), "summary of a.dat");
}

TEST_F(FileCommands, RecentListPutsTheNewestFirstAndKeepsAPathTwice) {
    for (const char* path : {"/d/1.dat", "/d/2.dat", "/d/1.dat"}) {
        open(path, dataFile('a', fewReadings));
        click("mnuItemClose");
    }
    EXPECT_THAT(mruShown(window), ElementsAre("/d/1.dat", "/d/2.dat", "/d/1.dat"));
    EXPECT_EQ(settings.get("Settings", "mrufile1"), "/d/1.dat");
    EXPECT_EQ(settings.get("Settings", "mrufile3"), "/d/1.dat");
    EXPECT_EQ(settings.get("Settings", "mrufile4"), "");
}

TEST_F(FileCommands, RecentEntryOpensItsFile) {
    open("/d/1.dat", dataFile('a', fewReadings));
    click("mnuItemClose");
    window.findChildren<QAction*>(QStringLiteral("mnuMRU"))[0]->trigger();
    EXPECT_EQ(recordings.info(0).path, "/d/1.dat");
}

TEST_F(FileCommands, RecentEntryThatIsGoneIsSaidAndStays) {
    open("/d/1.dat", dataFile('a', fewReadings));
    click("mnuItemClose");
    files.contents.clear();
    window.findChildren<QAction*>(QStringLiteral("mnuMRU"))[0]->trigger();
    EXPECT_THAT(prompt.texts(), ElementsAre(StartsWith("File not found or disk error\r\n/d/")));
    EXPECT_THAT(mruShown(window), ElementsAre("/d/1.dat"));
}

TEST_F(FileCommands, RecentEntryThatCannotBeReadIsADiskErrorADamagedOneIsNot) {
    open("/d/1.dat", dataFile('a', fewReadings));
    click("mnuItemClose");
    QAction* entry = window.findChildren<QAction*>(QStringLiteral("mnuMRU"))[0];
    for (const Fault& why : {fault::permissionDenied(), fault::pathFileAccess(), fault::deviceIo()}) {
        files.failRead = why;
        entry->trigger();
        EXPECT_THAT(prompt.shown.back().text, StartsWith("File not found or disk error\r\n/d/"))
            << why.what();
    }
    files.failRead.reset();
    files.contents["/d/1.dat"] = "rubbish";
    entry->trigger();
    EXPECT_THAT(prompt.shown.back().text, StartsWith("Error in processing file\r\n/d/1.dat\r\n"));
    EXPECT_THAT(mruShown(window), ElementsAre("/d/1.dat"));
}

TEST_F(FileCommands, PathWithAnAmpersandIsShownAsItIs) {
    open("/d/R&D.dat", dataFile('a', fewReadings));
    EXPECT_EQ(window.findChildren<QAction*>(QStringLiteral("mnuMRU"))[0]->text(),
              QStringLiteral("/d/R&&D.dat"));
}

TEST_F(FileCommands, LongPathIsShortenedInTheMiddleAndOpensAllTheSame) {
    const std::string path = "/home/technician/recordings/2024/northern district/substations/mill road/"
                             "feeder 12 red phase.dat";
    open(path, dataFile('a', fewReadings));
    click("mnuItemClose");
    QAction* entry = window.findChildren<QAction*>(QStringLiteral("mnuMRU"))[0];
    EXPECT_EQ(entry->text(),
              QStringLiteral("/home/technician/rec\u2026tions/mill road/feeder 12 red phase.dat"));
    EXPECT_EQ(entry->statusTip().toStdString(), path);
    entry->trigger();
    EXPECT_EQ(recordings.info(0).path, path);
}

TEST_F(FileCommands, ThirdFileTakesOpenAndTheRecentEntriesAwayUntilClose) {
    for (const char* path : {"/d/1.dat", "/d/2.dat", "/d/3.dat"})
        open(path, dataFile('a', fewReadings));
    EXPECT_FALSE(enabled("mnuItemOpen"));
    EXPECT_TRUE(mruShown(window).empty());
    click("mnuItemClose");
    EXPECT_TRUE(enabled("mnuItemOpen"));
    EXPECT_EQ(mruShown(window).size(), 3U);
    EXPECT_EQ(recordings.openCount(), 0);
}

TEST_F(FileCommands, RecentEntriesOfTheSettingsAreShownAtStartUp) {
    settings.set("Settings", "mrufile1", "/d/x.dat");
    settings.set("Settings", "mrufile3", "/d/y.dat");
    TLY another(services);
    EXPECT_THAT(mruShown(another), ElementsAre("/d/x.dat", "/d/y.dat"));
}

TEST_F(FileCommands, CloseEmptiesTheSlotsAndResetsTheViews) {
    open("/d/1.dat", dataFile('a', fewReadings));
    click("mnuItemViewPlot");
    click("mnuItemOnepgPlot");
    click("mnuItemClose");
    EXPECT_FALSE(recordings.isOpen(0));
    EXPECT_FALSE(display.onePage());
    EXPECT_EQ(display.view(), View::none);
    EXPECT_TRUE(window.screen().chart().isEmpty());
    EXPECT_EQ(window.screen().page(), Screen::Page::start);
    for (const char* name : {"mnuItemClose", "mnuItemSave", "mnuView", "mnuItemOnepgPlot", "mnuZoom"})
        EXPECT_FALSE(enabled(name)) << name;
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Tallyline"));
}

TEST_F(FileCommands, SaveWritesTheWholeOfTheChosenFileAndIsThenOff) {
    open("/d/1.dat", dataFile('a', fewReadings));
    open("/d/2.dat", dataFile('a', {100, 200, 300, 400, 500, 600}));
    chooser.answers = {1};
    prompt.files.push_back("/d/out.dat");
    click("mnuItemSave");
    EXPECT_EQ(prompt.filesAsked.back().filter, "data files (*.dat) | *.dat");
    EXPECT_TRUE(prompt.filesAsked.back().save);
    EXPECT_FALSE(enabled("mnuItemSave"));
    const std::string& bytes = files.contents["/d/out.dat"];
    EXPECT_THAT(bytes, StartsWith("\"\r\n\n\nPQXa   1234"));
    EXPECT_THAT(bytes, HasSubstr("\r  60  50  40  30  20  10\x1a\"\r\n"));
    EXPECT_EQ(display.gdataend(), 5);
}

TEST_F(FileCommands, FailedSaveKeepsTheOldFileAndTheMenu) {
    open("/d/1.dat", dataFile('a', fewReadings));
    files.contents["/d/out.dat"] = "old";
    files.failWrite = fault::diskFull();
    prompt.files.push_back("/d/out.dat");
    click("mnuItemSave");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 61: Disk full"));
    EXPECT_EQ(files.contents["/d/out.dat"], "old");
    EXPECT_TRUE(enabled("mnuItemSave"));
}

TEST_F(FileCommands, SaveOverTheFileThatIsOpenKeepsItOpenAndReadable) {
    open("/d/1.dat", dataFile('a', fewReadings));
    const auto readings = recordings.gReadings[0];
    prompt.files.push_back("/d/1.dat");
    click("mnuItemSave");
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(recordings.info(0).path, "/d/1.dat");
    EXPECT_EQ(recordings.gReadings[0], readings);
    click("mnuItemClose");
    open("/d/1.dat", std::string(files.contents["/d/1.dat"]));
    EXPECT_EQ(recordings.gReadings[0], readings);
}

TEST_F(FileCommands, SaveInAFolderWithoutTheRightSaysSo) {
    open("/d/1.dat", dataFile('a', fewReadings));
    files.failWrite = fault::permissionDenied();
    prompt.files.push_back("/readonly/out.dat");
    click("mnuItemSave");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 70: Permission denied"));
    EXPECT_TRUE(enabled("mnuItemSave"));
}

TEST_F(FileCommands, UnreadableItemsAreSaidInTheStatusBarOnly) {
    std::string bytes = dataFile('a', fewReadings);
    bytes.replace(bytes.find("  30"), 4, "  x0");
    open("/d/1.dat", bytes);
    EXPECT_EQ(recordings.openCount(), 1);
    EXPECT_THAT(remark().toStdString(), StartsWith("1 item of"));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(FileCommands, FilesOfTheCommandLineOpenAsTheMenuDoes) {
    for (const char* path : {"/d/1.dat", "/d/2.dat", "/d/3.dat"})
        files.contents[path] = dataFile('a', fewReadings);
    window.openFiles({"/d/1.dat", "/d/2.dat", "/d/3.dat"});
    EXPECT_EQ(recordings.openCount(), 3);
    EXPECT_EQ(settings.get("Settings", "mrufile1"), "/d/3.dat");
    EXPECT_FALSE(enabled("mnuItemOpen"));
}

TEST_F(FileCommands, FourthFileIsNotOpened) {
    for (const char* path : {"/d/1.dat", "/d/2.dat", "/d/3.dat", "/d/4.dat"})
        files.contents[path] = dataFile('a', fewReadings);
    window.openFiles({"/d/1.dat", "/d/2.dat", "/d/3.dat", "/d/4.dat"});
    EXPECT_EQ(recordings.openCount(), 3);
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_FALSE(prompt.shown[0].text.empty());
    EXPECT_EQ(settings.get("Settings", "mrufile1"), "/d/3.dat");
}

TEST_F(FileCommands, FilesCanBeDroppedOnTheWindow) {
    files.contents["/d/1.dat"] = dataFile('a', fewReadings);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/d/1.dat"))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    EXPECT_TRUE(QTest::qWaitFor([this] { return recordings.isOpen(0); }, 2000));
}

TEST_F(FileCommands, ChartFileShowsWhatWasSaved) {
    open("/d/1.dat", dataFile('a', fewReadings));
    click("mnuItemViewPlot");
    click("mnuItemadd");
    prompt.files.push_back("/d/c.chd");
    window.findChild<QAction*>(QStringLiteral("chartSave"))->trigger();
    EXPECT_EQ(prompt.filesAsked.back().filter, "chart files (*.chd) | *.chd");
    const Plot saved = window.screen().chart().plot();
    click("mnuItemClose");
    prompt.files.push_back("/d/c.chd");
    click("mnuItemImport");
    EXPECT_EQ(prompt.filesAsked.back().filter, "data files (*.chd) | *.chd");
    const Plot& shown = window.screen().chart().plot();
    EXPECT_EQ(shown.title, saved.title);
    EXPECT_EQ(shown.series.at(0).values, saved.series.at(0).values);
    ASSERT_EQ(window.screen().chart().notes().size(), 1U);
    EXPECT_EQ(window.screen().chart().notes()[0].text, "Enter note here");
    // It belongs to no open recording: a span means nothing.
    mark(1, 2);
    EXPECT_FALSE(enabled("mnuZoom"));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(FileCommands, ImportedChartShowsItsOwnNameInTheTitle) {
    open("/d/1.dat", dataFile('a', fewReadings));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("1.dat - Tallyline"));
    click("mnuItemViewPlot");
    prompt.files = {"/d/c.chd", "/d/c.chd"};
    window.findChild<QAction*>(QStringLiteral("chartSave"))->trigger();
    click("mnuItemImport");
    EXPECT_EQ(window.windowTitle(), QStringLiteral("c.chd - Tallyline"));
    EXPECT_EQ(window.screen().displaying(), "c.chd");
    click("mnuItemViewPlot");
    EXPECT_EQ(window.windowTitle(), QStringLiteral("1.dat - Tallyline"));
    click("mnuItemClose");
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Tallyline"));
}

TEST_F(FileCommands, DamagedChartFileIsSaidAndTheViewStays) {
    open("/d/1.dat", dataFile('a', fewReadings));
    files.contents["/d/bad.chd"] = "{\"version\": 1, \"series\": [";
    prompt.files.push_back("/d/bad.chd");
    click("mnuItemImport");
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_EQ(window.screen().page(), Screen::Page::text);
}

} // namespace
} // namespace tally
