// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/TLY_Help.h"
#include "app/forms/About.h"
#include "app/forms/FolderChoice.h"
#include "app/forms/HelpWindow.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::WindowTest;

class Options : public WindowTest {};

TEST_F(Options, UserNameIsAskedAndKept) {
    settings.set("Security", "userid", "Ann");
    prompt.inputs.push_back("Bo \"Zoë\" <b>");
    click("mnuItemUserID");
    EXPECT_EQ(prompt.asked.back().text, "Enter user name below\r");
    EXPECT_EQ(prompt.asked.back().preset, "Ann");
    EXPECT_EQ(settings.get("Security", "userid"), "Bo \"Zoë\" <b>");
}

TEST_F(Options, CancelledOrEmptyUserNameKeepsTheStoredOne) {
    settings.set("Security", "userid", "Ann");
    prompt.inputs.push_back(std::nullopt);
    click("mnuItemUserID");
    prompt.inputs.push_back("");
    click("mnuItemUserID");
    EXPECT_EQ(settings.get("Security", "userid"), "Ann");
}

TEST_F(Options, AboutShowsTheUserNameAsItIs) {
    settings.set("Security", "userid", "Bo <b>");
    whenOpen<About>([](About& about) {
        bool labelled = false;
        for (const auto* label : about.findChildren<QLabel*>())
            labelled = labelled || label->text() == QStringLiteral("User Name");
        EXPECT_TRUE(labelled);
        EXPECT_EQ(about.findChild<QLabel*>(QStringLiteral("userName"))->text(), QStringLiteral("Bo <b>"));
        about.accept();
    });
    click("mnuItemAbout");
}

TEST_F(Options, DefaultDirectoryIsChosenInTheWindow) {
    const QTemporaryDir place;
    QDir(place.path()).mkdir(QStringLiteral("meters"));
    settings.set("Directory", "default", place.path().toStdString());
    auto& drive = *window.findChild<QComboBox*>(QStringLiteral("Drive1"));
    auto& take = *window.findChild<QPushButton*>(QStringLiteral("Command1"));
    window.show();
    EXPECT_FALSE(drive.isVisible());
    click("mnuItemDefaultDir");
    EXPECT_TRUE(drive.isVisible() && drive.isEnabled());
    EXPECT_TRUE(take.isVisible() && take.isEnabled());
    auto& folders = *window.findChild<QListWidget*>(QStringLiteral("Dir1"));
    Q_EMIT folders.itemActivated(folders.findItems(QStringLiteral("meters"), Qt::MatchExactly).at(0));
    take.click();
    EXPECT_EQ(settings.get("Directory", "default"), place.path().toStdString() + "/meters");
    EXPECT_FALSE(drive.isVisible());
    EXPECT_FALSE(take.isVisible());
}

TEST_F(Options, DefaultDirectoryChoiceCanBeLeft) {
    settings.set("Directory", "default", "/no/such/folder");
    window.show();
    click("mnuItemDefaultDir");
    window.findChild<QPushButton*>(QStringLiteral("Command2"))->click();
    EXPECT_EQ(settings.get("Directory", "default"), "/no/such/folder");
    EXPECT_FALSE(window.folderChoice().isVisible());
}

TEST_F(Options, SpecialTestListsTheState) {
    open("/d/a.dat", dataFile('a', {100, 200, 300}));
    recordings.gText = std::string(150, 'x');
    recordings.gDateX = 7;
    click("SpecialTest");
    EXPECT_THAT(prompt.texts(),
                ElementsAre("gDatastart='0'  gdataend='2'\r\ngtext$='" + std::string(100, 'x') +
                            "'\r\ngDateX='7'\r\ngZoomFlag='False'\r\nginx='0'\r\n"
                            "gInfo(0,7)='/d/a.dat'\r\ngInfo(1,7)=''\r\ngInfo(2,7)=''"));
}

TEST_F(Options, MissingHelpFileIsSaid) {
    window.setHelpFile(QStringLiteral("/no/such/tallyhelp.hlp"));
    click("mnuItemHelp");
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_THAT(prompt.shown[0].text, HasSubstr("The help file is missing"));
}

TEST_F(Options, DamagedHelpFileIsSaid) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tallyhelp.hlp"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("this is no help file");
    file.close();
    window.setHelpFile(path);
    click("mnuItemHelp");
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_THAT(prompt.shown[0].text, HasSubstr("The help file is damaged"));
}

TEST_F(Options, HelpOpensWithItsFirstPageAndHasOneForEachMenu) {
    click("mnuItemHelp");
    EXPECT_TRUE(prompt.shown.empty());
    auto* help = window.findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr);
    auto* pages = help->findChild<QTextBrowser*>(QStringLiteral("HelpPages"));
    EXPECT_THAT(pages->toPlainText().toStdString(), HasSubstr("One page for each menu"));
    for (const char* page : {"file", "survey", "edit", "view", "zoom", "instrument", "options", "helpmenu"}) {
        help->showPage(QString::fromLatin1(page) + QStringLiteral(".html"));
        EXPECT_GT(pages->toPlainText().size(), 100) << page;
    }
}

TEST_F(Options, F1InAnOpenMenuOpensThePageOfThatMenu) {
    window.show();
    const std::pair<const char*, const char*> pages[] = {{"mnuFile", "file.html"},
                                                         {"mnuItemExportType", "file.html"},
                                                         {"mnusurvey", "survey.html"},
                                                         {"mnuEdit", "edit.html"},
                                                         {"mnuView", "view.html"},
                                                         {"pwrview", "view.html"},
                                                         {"mnuInstrument", "instrument.html"},
                                                         {"mnuOptions", "options.html"},
                                                         {"mnuHelp", "helpmenu.html"}};
    for (const auto& [name, page] : pages) {
        auto* menu = window.findChild<QMenu*>(QString::fromLatin1(name));
        ASSERT_NE(menu, nullptr) << name;
        menu->popup(QPoint(10, 10));
        QTest::keyClick(menu, Qt::Key_F1);
        EXPECT_FALSE(menu->isVisible()) << name;
        QCoreApplication::processEvents();
        auto* help = window.findChild<HelpWindow*>();
        ASSERT_NE(help, nullptr) << name;
        EXPECT_EQ(
            help->findChild<QTextBrowser*>(QStringLiteral("HelpPages"))->source().fileName().toStdString(),
            page)
            << name;
    }
}

TEST_F(Options, PlaceOfTheWindowIsRemembered) {
    window.resize(777, 555);
    QCloseEvent close;
    QApplication::sendEvent(&window, &close);
    TLY another(services);
    EXPECT_EQ(another.size(), QSize(777, 555));
}

TEST_F(Options, NonsenseInTheSettingsDoesNoHarm) {
    settings.set("Window", "geometry", "rubbish!!");
    settings.set("Settings", "Vline", "many");
    settings.set("Settings", "LastVoltages", "x -3 1e999 4160");
    TLY another(services);
    EXPECT_EQ(another.size(), QSize(1000, 700));
}

TEST_F(Options, SettingsTroubleIsANoticeThatCanBeDismissed) {
    window.reportSettings("The settings file is damaged.");
    EXPECT_EQ(window.notices().text(QStringLiteral("settings")),
              QStringLiteral("The settings file is damaged."));
    window.notices().remove(QStringLiteral("settings"));
    EXPECT_FALSE(window.notices().has(QStringLiteral("settings")));
    EXPECT_FALSE(window.notices().isVisibleTo(&window));
}

TEST_F(Options, CommandsThatComeWhileOneRunsAreIgnored) {
    bool inner = false;
    EXPECT_TRUE(
        window.dispatcher().run([&] { EXPECT_FALSE(window.dispatcher().run([&] { inner = true; })); }));
    EXPECT_FALSE(inner);
    EXPECT_FALSE(window.dispatcher().running());
}

TEST_F(Options, FaultReportNamesTheCallPointWhereOneIsSet) {
    window.dispatcher().run([this] {
        callPoint = 315;
        throw fault::divisionByZero();
    });
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_THAT(prompt.shown[0].text, HasSubstr("Error number 11: Division by zero"));
    EXPECT_THAT(prompt.shown[0].text, HasSubstr("315"));
    EXPECT_EQ(prompt.shown[0].title, "Tallyline");
}

TEST_F(Options, FaultPutsRangeFileAndDisplayBack) {
    open("/d/a.dat", dataFile('a', {100, 200, 300}));
    window.dispatcher().run([this] {
        EXPECT_TRUE(display.applyRange(recordings, 2, 2));
        recordings.ginx = 5;
        display.textShown(View::powerSummary, 0);
        throw fault::overflow();
    });
    EXPECT_EQ(display.gDatastart(), 0);
    EXPECT_EQ(recordings.ginx, 0);
    EXPECT_EQ(display.view(), View::summary);
}

TEST_F(Options, RefusalIsToldWithWhatItSpeaksOfAndPutsTheDisplayBack) {
    open("/d/a.dat", dataFile('a', {100, 200, 300}));
    EXPECT_FALSE(window.dispatcher().run([this]() -> Done {
        display.startPower(recordings);
        return refuse("Not this one.", "/d/a.dat", "Take another.");
    }));
    EXPECT_FALSE(display.powerView());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"Not this one.\r\n/d/a.dat\r\nTake another."});
}

} // namespace
} // namespace tally
