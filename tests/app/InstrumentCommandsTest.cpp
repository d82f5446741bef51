// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "link/forms/Dwnloaditem.h"
#include "link/forms/InstSel.h"
#include "link/forms/PortSel.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>

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

} // namespace
} // namespace tally
