// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/forms/StartPage.h"
#include "control/forms/InitInst.h"
#include "link/forms/Dwnloaditem.h"
#include "link/forms/FindForm.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"
#include "platform/JournalFolder.h"
#include "platform/SafeFile.h"

#include <QCloseEvent>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using testing::WindowTest;

class InstrumentTest : public WindowTest {
protected:
    // A clean memory of thirty readings, as the instrument sends it.
    static std::string memory() {
        std::string text = "PQXa   1234" + std::string(19, ' ') + "03-15-24 14:05   Vbatt 3E8\rT:";
        for (int i = 0; i < 3; ++i)
            text += " 120 121 122 123 124 125 126 127 128 129\n\r";
        return text + "\x1a";
    }
    // The instrument sends when its cable goes in, which is when the port is open.
    void send(const std::string& text) {
        line.onOpen = [this, text](const std::string&) {
            waiter.after(100, [this, text] { line.send(text); });
        };
    }
    void download() {
        instrument.instSelection = 4;
        whenOpen<Dwnloaditem>(
            [](Dwnloaditem& form) { form.findChild<QPushButton*>(QStringLiteral("OK"))->click(); });
        click("mnuItemDownload");
    }
    QString noticeOf(const char* id) const {
        return window_().notices().text(QStringLiteral("reception ") + QString::fromLatin1(id));
    }
    void press(const char* caption) {
        for (auto* button : window.notices().findChildren<QPushButton*>())
            if (button->text() == QString::fromLatin1(caption)) {
                button->click();
                QApplication::processEvents();
                return;
            }
        FAIL() << "no button " << caption;
    }

private:
    TLY& window_() const { return const_cast<InstrumentTest*>(this)->window; }
};

TEST_F(InstrumentTest, DownloadWaitsInTheNoticeBarAndSaveAsWritesItWithNoFileOpen) {
    send(memory());
    download();
    EXPECT_FALSE(line.isOpen());
    EXPECT_TRUE(window.menuBar()->isEnabled());
    EXPECT_TRUE(enabled("mnuItemSave"));
    EXPECT_FALSE(noticeOf("1").isEmpty());
    prompt.shown.clear();
    prompt.files.push_back("/d/new.dat");
    click("mnuItemSave");
    EXPECT_THAT(files.contents["/d/new.dat"], StartsWith("\""));
    EXPECT_THAT(files.contents["/d/new.dat"], HasSubstr("PQXa   1234"));
    EXPECT_TRUE(noticeOf("1").isEmpty());
    EXPECT_EQ(journal.receptions[0].state, JournalState::saved);
    EXPECT_FALSE(enabled("mnuItemSave"));
    EXPECT_EQ(prompt.filesAsked.back().name, "1234-2024-03-15.dat");
    EXPECT_EQ(window.notices().text(QStringLiteral("saved download")).toStdString(),
              "Saved in /d/new.dat: instrument 1234, 30 readings.");
    EXPECT_EQ(settings.get("Settings", "mrufile1"), "/d/new.dat");
    open("/d/new.dat", files.contents["/d/new.dat"]);
    EXPECT_EQ(recordings.info(0).count, 30);
}

TEST_F(InstrumentTest, SavedDownloadIsOpenedFromItsNotice) {
    send(memory());
    download();
    prompt.shown.clear();
    prompt.files.push_back("/d/new.dat");
    click("mnuItemSave");
    press("Open");
    EXPECT_EQ(recordings.info(0).path, "/d/new.dat");
    EXPECT_EQ(recordings.info(0).count, 30);
    EXPECT_TRUE(window.notices().text(QStringLiteral("saved download")).isEmpty());
}

TEST_F(InstrumentTest, SessionLeavesTheMenusAsTheyWere) {
    ASSERT_FALSE(enabled("mnuView"));
    instrument.instSelection = 4;
    whenOpen<Dwnloaditem>([](Dwnloaditem& form) { form.reject(); });
    click("mnuItemDownload");
    EXPECT_TRUE(window.menuBar()->isEnabled());
    EXPECT_FALSE(enabled("mnuView"));
    EXPECT_TRUE(enabled("mnuInstrument"));
    EXPECT_TRUE(enabled("mnuItemDownload"));
}

TEST_F(InstrumentTest, OpenFilesAndTheirSaveNeverTouchTheDownload) {
    send(memory());
    download();
    prompt.shown.clear();
    open("/d/a.dat", dataFile('a', {100, 200, 300}));
    click("mnuItemViewTable");
    prompt.files.push_back("/d/copy.dat");
    click("mnuItemSave");
    EXPECT_THAT(files.contents["/d/copy.dat"], HasSubstr("  30  20  10\x1a"));
    EXPECT_FALSE(noticeOf("1").isEmpty());
    click("mnuItemClose");
    EXPECT_TRUE(enabled("mnuItemSave"));
    prompt.files.push_back("/d/new.dat");
    click("mnuItemSave");
    EXPECT_THAT(files.contents["/d/new.dat"], HasSubstr("PQXa   1234"));
}

TEST_F(InstrumentTest, DownloadCanBeSavedFromItsNotice) {
    send(memory());
    download();
    open("/d/a.dat", dataFile('a', {100, 200, 300}));
    prompt.files.push_back("/d/new.dat");
    press("Save As...");
    EXPECT_THAT(files.contents["/d/new.dat"], HasSubstr("PQXa   1234"));
    EXPECT_EQ(journal.receptions[0].state, JournalState::saved);
    EXPECT_TRUE(noticeOf("1").isEmpty());
    EXPECT_TRUE(enabled("mnuItemSave"));
}

TEST_F(InstrumentTest, DownloadThatCannotBeSavedStaysPending) {
    send(memory());
    download();
    prompt.shown.clear();
    files.failWrite = fault::diskFull();
    prompt.files.push_back("/d/new.dat");
    click("mnuItemSave");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 61: Disk full"));
    EXPECT_FALSE(noticeOf("1").isEmpty());
    EXPECT_TRUE(enabled("mnuItemSave"));
}

TEST_F(InstrumentTest, DownloadIsDroppedAfterAQuestion) {
    send(memory());
    download();
    prompt.answers = {Answer::No};
    press("Drop");
    EXPECT_FALSE(noticeOf("1").isEmpty());
    prompt.answers = {Answer::Yes};
    press("Drop");
    EXPECT_TRUE(noticeOf("1").isEmpty());
    EXPECT_EQ(journal.receptions[0].state, JournalState::dropped);
    EXPECT_FALSE(enabled("mnuItemSave"));
}

TEST_F(InstrumentTest, InterruptedReceptionIsOfferedAtTheNextStart) {
    journal.receptions.push_back({.parts = {memory()}, .state = JournalState::interrupted});
    window.show();
    QApplication::processEvents();
    window.grab();
    QApplication::processEvents();
    EXPECT_FALSE(noticeOf("1").isEmpty());
    press("Show");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("PQXa   1234"));
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("128 129\n 120"));
    press("Validate");
    EXPECT_EQ(journal.receptions[0].state, JournalState::accepted);
    EXPECT_TRUE(enabled("mnuItemSave"));
}

TEST_F(InstrumentTest, CommandThatNeedsATypeAsksForOneFirst) {
    whenOpen<InstSel>([](InstSel& form) {
        bool said = false;
        for (const auto* label : form.findChildren<QLabel*>())
            said = said || label->text() == QStringLiteral("Must first select an instrument type:");
        EXPECT_TRUE(said);
        form.reject();
    });
    click("mnuItemDownload");
    EXPECT_TRUE(line.calls.empty());
    EXPECT_TRUE(window.menuBar()->isEnabled());
}

TEST_F(InstrumentTest, WindowCannotBeClosedWhileASessionRuns) {
    bool accepted = true;
    bool menus = true;
    line.onOpen = [&](const std::string&) {
        waiter.after(100, [&] {
            menus = window.menuBar()->isEnabled();
            QCloseEvent close;
            QApplication::sendEvent(&window, &close);
            accepted = close.isAccepted();
        });
    };
    download();
    EXPECT_FALSE(menus);
    EXPECT_FALSE(accepted);
    EXPECT_TRUE(waiter.cancelRequested());
    EXPECT_FALSE(line.isOpen());
    EXPECT_TRUE(window.menuBar()->isEnabled());
}

TEST_F(InstrumentTest, PortIsReadAtStartUpAndChosenInItsDialog) {
    settings.set("Comm", "TLY.MSComm1.CommPort", "3");
    TLY another(services);
    EXPECT_EQ(instrument.gCommPort, 3);
    settings.set("Comm", "TLY.MSComm1.CommPort", "99");
    TLY third(services);
    EXPECT_EQ(instrument.gCommPort, 1);
    whenOpen<PortSel>([](PortSel& form) {
        for (auto* option : form.findChildren<QRadioButton*>())
            if (option->text() == QStringLiteral("com8"))
                option->click();
        form.accept();
    });
    click("mnuItemPortSelect");
    EXPECT_EQ(settings.get("Comm", "TLY.MSComm1.CommPort"), "8");
}

TEST_F(InstrumentTest, StatusLineSaysWhyAPortIsNotValid) {
    line.failOpen = Fault(8005, "Port already open");
    line.openProblem = "COM1 (/dev/ttyS0) is in use by another program.";
    instrument.instSelection = 4;
    click("mnuItemDownload");
    EXPECT_THAT(prompt.texts(),
                ElementsAre("Communication port not valid.\r\nTry selecting a different COM port\r\n"
                            "COM1 (/dev/ttyS0) is in use by another program."));
    EXPECT_EQ(remark(), QStringLiteral("COM1 (/dev/ttyS0) is in use by another program."));
}

TEST_F(InstrumentTest, JournalThatCannotBeWrittenIsSaid) {
    journal.trouble = "Receptions cannot be kept.";
    send(memory());
    download();
    EXPECT_EQ(window.notices().text(QStringLiteral("journal")), QStringLiteral("Receptions cannot be kept."));
}

// A journal on a disk that fills up: it has a part of what came, and not what was accepted.
class MemoryOnlyTest : public InstrumentTest {
protected:
    void SetUp() override {
        journal.trouble = "No space left on device";
        send(memory());
        download();
        prompt.shown.clear();
        journal.receptions[0].parts = {memory().substr(0, 70)};
    }
    QString notice() { return window.notices().text(QStringLiteral("only in memory")); }
    bool closes() {
        QCloseEvent close;
        QApplication::sendEvent(&window, &close);
        return close.isAccepted();
    }
};

TEST_F(MemoryOnlyTest, TheWholeIsOfferedAndNotWhatTheJournalHasOfIt) {
    window.journalChanged();
    EXPECT_EQ(notice().toStdString(),
              "The download of instrument 1234 is in no file and on no disk. Save it before anything else.");
    EXPECT_TRUE(noticeOf("1").isEmpty());
    prompt.files.push_back("/d/new.dat");
    press("Save As...");
    EXPECT_THAT(files.contents["/d/new.dat"], HasSubstr("128 129\n\r\x1a"));
    EXPECT_TRUE(notice().isEmpty());
    EXPECT_TRUE(closes());
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(MemoryOnlyTest, ExitAsksNamesTheCauseAndSavesTheWhole) {
    prompt.answers = {Answer::Yes};
    prompt.files.push_back("/d/new.dat");
    EXPECT_TRUE(closes());
    EXPECT_THAT(files.contents["/d/new.dat"], HasSubstr("128 129\n\r\x1a"));
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_THAT(prompt.shown[0].text, HasSubstr("No space left on device"));
}

TEST_F(MemoryOnlyTest, ExitIsGivenUpUnlessItIsSavedOrDropped) {
    prompt.answers = {Answer::No, Answer::No};
    EXPECT_FALSE(closes());
    prompt.answers = {Answer::Yes};
    prompt.files.push_back(std::nullopt);
    EXPECT_FALSE(closes());
    prompt.answers = {Answer::Yes};
    prompt.files.push_back("/d/new.dat");
    files.failWrite = fault::diskFull();
    EXPECT_FALSE(closes());
    EXPECT_EQ(prompt.shown.back().text, "Error number 61: Disk full");
    prompt.answers = {Answer::No, Answer::Yes};
    EXPECT_TRUE(closes());
}

TEST_F(MemoryOnlyTest, CloseAsks) {
    open("/d/a.dat", dataFile('a', {100, 200, 300}));
    prompt.answers = {Answer::No, Answer::No};
    click("mnuItemClose");
    EXPECT_TRUE(recordings.isOpen(0));
    prompt.answers = {Answer::Yes};
    prompt.files.push_back("/d/new.dat");
    click("mnuItemClose");
    EXPECT_FALSE(recordings.isOpen(0));
    EXPECT_THAT(files.contents["/d/new.dat"], HasSubstr("128 129\n\r\x1a"));
}

TEST_F(MemoryOnlyTest, AnotherSessionDoesNotReplaceIt) {
    const auto openings = line.calls.size();
    for (const char* command : {"mnuItemDownload", "mnuItemRecover", "mnuItemInitialize"}) {
        prompt.answers = {Answer::No, Answer::No};
        click(command);
        EXPECT_EQ(line.calls.size(), openings) << command;
    }
    EXPECT_FALSE(notice().isEmpty());
    prompt.files.push_back("/d/new.dat");
    click("mnuItemSave");
    EXPECT_THAT(files.contents["/d/new.dat"], HasSubstr("128 129\n\r\x1a"));
}

TEST_F(MemoryOnlyTest, AReceptionThatIsValidatedDoesNotReplaceIt) {
    journal.receptions.push_back({.parts = {memory()}, .state = JournalState::interrupted});
    window.journalChanged();
    prompt.answers = {Answer::No, Answer::No};
    press("Validate");
    EXPECT_FALSE(notice().isEmpty());
    EXPECT_EQ(journal.receptions[1].state, JournalState::interrupted);
}

// The same with a real journal in a folder that cannot be made.
TEST_F(InstrumentTest, WhatAJournalWithoutItsFolderCouldNotKeepIsAskedAbout) {
    const QTemporaryDir folder;
    QFile blocker(folder.filePath(QStringLiteral("data")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    SafeFile disk;
    JournalFolder real(blocker.fileName().toStdString() + "/journal", disk);
    SessionServices realSession{
        line, waiter, prompt, instrument, real, callPoint, [this] { waiter.cancelNow(); }};
    Services realServices{recordings, display, settings, files, clock, prompt, chooser, realSession, places};
    TLY other(realServices);
    send(memory());
    instrument.instSelection = 4;
    whenOpen<Dwnloaditem>(
        [](Dwnloaditem& form) { form.findChild<QPushButton*>(QStringLiteral("OK"))->click(); });
    other.menus().item("mnuItemDownload").trigger();
    EXPECT_FALSE(other.notices().text(QStringLiteral("only in memory")).isEmpty());
    EXPECT_THAT(other.notices().text(QStringLiteral("journal")).toStdString(),
                HasSubstr("The journal of downloads cannot be written in "));
    prompt.answers = {Answer::No, Answer::No};
    QCloseEvent close;
    QApplication::sendEvent(&other, &close);
    EXPECT_FALSE(close.isAccepted());
    EXPECT_THAT(prompt.shown.at(prompt.shown.size() - 2).text, HasSubstr("Not a directory"));
}

TEST_F(InstrumentTest, SaveProposesSerialNumberAndDayInTheFolderUsedLast) {
    send(memory());
    download();
    prompt.files.push_back("/usb/stick/other.dat");
    click("mnuItemSave");
    EXPECT_EQ(prompt.filesAsked.back().name, "1234-2024-03-15.dat");
    download();
    prompt.files.push_back(std::nullopt);
    click("mnuItemSave");
    EXPECT_EQ(prompt.filesAsked.back().name, "1234-2024-03-15.dat");
    EXPECT_EQ(prompt.filesAsked.back().folder, "/usb/stick");
}

TEST_F(InstrumentTest, RefusedDownloadIsOffered) {
    std::string bad = memory();
    bad.replace(bad.find(" 120"), 4, " 1x0");
    send(bad);
    prompt.answers = {Answer::No};
    download();
    EXPECT_THAT(noticeOf("1").toStdString(), HasSubstr("PQX Ser. 1234"));
    EXPECT_THAT(noticeOf("1").toStdString(), HasSubstr("refused"));
    prompt.answers = {Answer::Yes};
    press("Validate");
    EXPECT_TRUE(enabled("mnuItemSave"));
}

TEST_F(InstrumentTest, WhatTheCommandLineReceivedIsOfferedWhenTheWindowIsLookedAtAgain) {
    window.show();
    QApplication::processEvents();
    window.grab();
    QApplication::processEvents();
    journal.receptions.push_back({.parts = {memory()}, .state = JournalState::refused});
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &activate);
    EXPECT_FALSE(noticeOf("1").isEmpty());
}

TEST_F(InstrumentTest, InitializeAsksBeforeItErasesWhatIsNotSaved) {
    send(memory());
    download();
    prompt.shown.clear();
    whenOpen<InitInst>([](InitInst& form) { form.accept(); });
    prompt.answers = {Answer::Ok, Answer::Ok, Answer::No};
    click("mnuItemInitialize");
    ASSERT_EQ(prompt.shown.size(), 3U);
    EXPECT_THAT(prompt.shown[2].text, StartsWith("A download of this instrument is not saved yet:"));
    EXPECT_EQ(prompt.shown[2].defaultAnswer, Answer::No);
    EXPECT_EQ(prompt.shown[0].defaultAnswer, Answer::Cancel);
    EXPECT_EQ(prompt.shown[1].defaultAnswer, Answer::Cancel);
    EXPECT_EQ(line.written, "");
    EXPECT_FALSE(line.isOpen());
}

TEST_F(InstrumentTest, AWaitSaysWhatToCheckAfterTenSecondsAndNoLongerToInsertTheCable) {
    QString hint;
    QString before;
    QString during;
    instrument.instSelection = 4;
    waiter.after(11000, [&] {
        const auto* form = QApplication::activeModalWidget();
        hint = form->findChild<QLabel*>(QStringLiteral("HintLabel"))->text();
        line.send(memory().substr(0, 60));
        waiter.after(100, [&, form] {
            during = form->findChild<QLabel*>(QStringLiteral("PromptLabel"))->text();
            waiter.cancelNow();
        });
    });
    whenOpen<Dwnloaditem>([&](Dwnloaditem& form) {
        before = form.findChild<QLabel*>(QStringLiteral("PromptLabel"))->text();
        form.findChild<QPushButton*>(QStringLiteral("OK"))->click();
    });
    click("mnuItemDownload");
    EXPECT_THAT(before.toStdString(), HasSubstr("Insert the cable into the instrument."));
    EXPECT_THAT(hint.toStdString(), StartsWith("Nothing has come since "));
    EXPECT_EQ(during, QStringLiteral("The instrument is sending. Leave the cable in until the end."));
}

class FindTest : public InstrumentTest {
protected:
    void SetUp() override {
        PortDevice adapter{"/dev/ttyUSB0", "adapter"};
        adapter.adapter = true;
        ports.listed = {adapter};
    }
};

TEST_F(FindTest, AnInstrumentThatWasHeardIsDownloadedFrom) {
    send(memory());
    QString heard;
    whenOpen<FindForm>([&](FindForm& form) {
        heard = form.findChild<QListWidget*>()->item(0)->text();
        whenOpen<Dwnloaditem>(
            [](Dwnloaditem& next) { next.findChild<QPushButton*>(QStringLiteral("OK"))->click(); });
        form.findChild<QPushButton*>(QStringLiteral("OK"))->click();
    });
    click("mnuItemFind");
    EXPECT_EQ(heard, QStringLiteral("/dev/ttyUSB0 (adapter): PQX, serial number 1234, Vbatt = 3.806 volts"));
    EXPECT_EQ(devicePath(instrument.gCommPort, settings), "/dev/ttyUSB0");
    EXPECT_EQ(instrument.instSelection, 10);
    EXPECT_FALSE(noticeOf("1").isEmpty());
    EXPECT_TRUE(window.menuBar()->isEnabled());
}

TEST_F(FindTest, NothingHeardIsSaidAndChangesNothing) {
    QString said;
    whenOpen<FindForm>([&](FindForm& form) {
        said = form.findChild<QLabel*>(QStringLiteral("Label1"))->text();
        EXPECT_FALSE(form.findChild<QPushButton*>(QStringLiteral("OK"))->isVisible());
        form.reject();
    });
    click("mnuItemFind");
    EXPECT_THAT(said.toStdString(), StartsWith("No instrument was heard."));
    EXPECT_EQ(instrument.instSelection, 0);
    EXPECT_EQ(settings.get("Comm", "TLY.MSComm1.CommPort"), "");
    EXPECT_EQ(line.written, "");
}

TEST_F(FindTest, PortsThatAreNoAdaptersAreOpenedOnlyWhenTheUserSaysSo) {
    ports.listed = {{"/dev/ttyS0", ""}};
    prompt.answers = {Answer::No};
    whenOpen<FindForm>([](FindForm& form) { form.reject(); });
    click("mnuItemFind");
    EXPECT_THAT(prompt.shown.at(0).text, HasSubstr("/dev/ttyS0"));
    EXPECT_EQ(prompt.shown.at(0).defaultAnswer, Answer::No);
    EXPECT_EQ(line.count("PortOpen true"), 0);
    prompt.answers = {Answer::Yes};
    whenOpen<FindForm>([](FindForm& form) { form.reject(); });
    click("mnuItemFind");
    EXPECT_EQ(line.count("PortOpen true"), 2);
}

TEST_F(InstrumentTest, StartPageShowsRecentFilesAndWhatIsNotSaved) {
    open("/d/feeder.dat", dataFile('a', {100, 200, 300}));
    click("mnuItemClose");
    journal.receptions.push_back({.parts = {memory()}, .state = JournalState::interrupted});
    window.show();
    window.journalChanged();
    StartPage& start = window.screen().start();
    auto* recent = start.findChild<QPushButton*>(QStringLiteral("startRecent"));
    ASSERT_NE(recent, nullptr);
    EXPECT_EQ(recent->text(), QStringLiteral("feeder.dat  -  1234, Mar 15, 24"));
    EXPECT_THAT(start.findChild<QLabel*>(QStringLiteral("startUnsaved"))->text().toStdString(),
                HasSubstr("PQX Ser. 1234"));
    recent->click();
    QApplication::processEvents();
    EXPECT_EQ(recordings.info(0).path, "/d/feeder.dat");
}

TEST_F(InstrumentTest, SimulatedInstrumentIsTriedWithOneClick) {
    PortDevice simulated{"/cache/simulated-instrument", "simulated instrument"};
    simulated.simulated = true;
    ports.listed = {simulated};
    TLY other(services);
    send(memory());
    whenOpen<Dwnloaditem>(
        [](Dwnloaditem& form) { form.findChild<QPushButton*>(QStringLiteral("OK"))->click(); });
    other.screen().start().findChild<QPushButton*>(QStringLiteral("startSimulated"))->click();
    EXPECT_EQ(devicePath(instrument.gCommPort, settings), "/cache/simulated-instrument");
    EXPECT_EQ(instrument.instSelection, 7);
    EXPECT_EQ(journal.receptions.size(), 1U);
}

TEST_F(InstrumentTest, DownloadSaysHowMuchIsLeft) {
    QString left;
    instrument.instSelection = 4;
    // The first opening only tries the port.
    int openings = 0;
    line.onOpen = [&](const std::string&) {
        if (++openings < 2)
            return;
        line.sendPaced(waiter.now() + 100, memory(), 10);
        waiter.after(700, [&] {
            left = QApplication::activeModalWidget()
                       ->findChild<QLabel*>(QStringLiteral("RemainingLabel"))
                       ->text();
        });
    };
    download();
    // The tick of 600 ms comes before the character of that moment: 50 in 500 ms, and 55,702 x 0.01 s left.
    EXPECT_EQ(left.toStdString(), "50 of at most 55,752 characters, about 558 s left");
}

} // namespace
} // namespace tally
