// SPDX-License-Identifier: GPL-3.0-or-later
// The roads between the main window and the archive.
#include "WindowTest.h"

#include "app/forms/StartPage.h"
#include "archive/forms/ArchiveForm.h"
#include "archive/forms/RecordingTable.h"
#include "core/RecentFiles.h"
#include "platform/archive/OpenArchive.h"
#include "study/forms/StudyForm.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace tally {
namespace {

using testing::dataFile;
using testing::WindowTest;

struct ArchiveCommands : WindowTest {
    const std::string maple = dataFile('a', {100, 200, 300});
    const std::string oak = dataFile('a', {500, 400}, 'X', false, "03-16-24 10:00");

    void make() { ASSERT_TRUE(initArchive(archives.usual())); }
    void keep(const std::string& name, const std::string& bytes) {
        const auto kept = archive::keptOf(bytes, "North\r\nMaple\r\n\r\n\r\n",
                                          {"/data/" + name, {"data", name}}, archives.tools());
        (*openArchive(archives.usual(), archives.tools()))->add({*kept});
    }
    int recordingsKept() {
        return int((*openArchive(archives.usual(), archives.tools()))->stats().recordings);
    }
    archive::ArchiveForm& form() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<archive::ArchiveForm*>(widget))
                return *found;
        throw std::logic_error("the archive's window is not there");
    }
    archive::RecordingTable& table() {
        return *form().findChild<archive::RecordingTable*>(QStringLiteral("recordings"));
    }
    void openWindow(int rows) {
        click("mnuItemArchive");
        ASSERT_TRUE(QTest::qWaitFor([&] { return table().model()->rowCount() == rows; }, 10000));
    }
    void press(const char* name) { form().findChild<QPushButton*>(QString::fromLatin1(name))->click(); }
    bool opened(int slot) {
        return QTest::qWaitFor([this, slot] { return recordings.isOpen(slot); }, 10000);
    }
    NoticeBar& notices() { return window.notices(); }
    void answer(const char* caption) {
        for (QPushButton* button : notices().findChildren<QPushButton*>())
            if (button->text() == QString::fromLatin1(caption))
                button->click();
        QCoreApplication::processEvents();
    }
    // Opens a recording and saves it. The double of the disk does not write; the file is there.
    void saveAs(const std::string& path) {
        click("mnuItemClose");
        open("/work/a.dat", maple);
        prompt.files.push_back(path);
        click("mnuItemSave");
    }
};

TEST_F(ArchiveCommands, OpensACopyAndSaysWhereItIsFrom) {
    make();
    keep("maple.dat", maple);
    openWindow(1);
    table().selectAll();
    press("archiveOpen");
    ASSERT_TRUE(opened(0));
    const std::string path = recordings.info(0).path;
    EXPECT_EQ(fileNameOf(path), "maple.dat");
    EXPECT_NE(path.find("tallyline-archive-"), std::string::npos);
    EXPECT_EQ(files.contents[path], maple);
    EXPECT_EQ(recordings.gNotes[0][1], "Maple");
    EXPECT_EQ(window.windowTitle(), QStringLiteral("maple.dat (from the archive) - Tallyline"));
    // It goes with the program: nothing to come back to.
    EXPECT_EQ(recentFiles(settings)[0], "");
}

TEST_F(ArchiveCommands, StudiesWhatWasChosen) {
    make();
    keep("maple.dat", maple);
    openWindow(1);
    table().selectAll();
    press("archiveStudy");
    ASSERT_TRUE(opened(0));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        auto* study = window.findChild<study::StudyForm*>(QStringLiteral("LoadStudy"));
        return study && study->isVisibleTo(&window);
    }));
}

TEST_F(ArchiveCommands, SaysHowMuchRoomThereIs) {
    make();
    keep("maple.dat", maple);
    keep("oak.dat", oak);
    open("/work/a.dat", maple);
    open("/work/b.dat", maple);
    openWindow(2);
    table().selectAll();
    press("archiveOpen");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !prompt.shown.empty(); }, 10000));
    EXPECT_EQ(prompt.shown.back().text,
              "There is room for 1 more recording(s)\r\nClose the open files first.");
    EXPECT_FALSE(recordings.isOpen(2));
}

TEST_F(ArchiveCommands, IsOnTheStartPage) {
    make();
    auto* button = window.screen().start().findChild<QPushButton*>(QStringLiteral("startArchive"));
    ASSERT_NE(button, nullptr);
    button->click();
    EXPECT_TRUE(form().isVisible());
    window.close();
    EXPECT_FALSE(form().isVisible());
}

TEST_F(ArchiveCommands, AsksOnceWhetherSavesGoIn) {
    make();
    const std::string saved = archives.folder.write("saved.dat", maple);
    saveAs(saved);
    ASSERT_TRUE(notices().has(QStringLiteral("archive automatic")));
    EXPECT_EQ(settings.get("Archive", "automatic"), "off");
    EXPECT_EQ(recordingsKept(), 0);
    answer("Yes");
    EXPECT_TRUE(QTest::qWaitFor([this] { return recordingsKept() == 1; }, 10000));
    EXPECT_EQ(settings.get("Archive", "automatic"), "on");
    // From now on by itself.
    saveAs(archives.folder.write("next.dat", oak));
    EXPECT_FALSE(notices().has(QStringLiteral("archive automatic")));
    EXPECT_TRUE(QTest::qWaitFor([this] { return recordingsKept() == 2; }, 10000));
}

TEST_F(ArchiveCommands, TakesNoForAnAnswer) {
    make();
    saveAs(archives.folder.write("saved.dat", maple));
    answer("No");
    saveAs(archives.folder.write("again.dat", maple));
    EXPECT_FALSE(notices().has(QStringLiteral("archive automatic")));
    QTest::qWait(50);
    EXPECT_EQ(recordingsKept(), 0);
}

TEST_F(ArchiveCommands, SaysWhenASaveCouldNotGoIn) {
    make();
    settings.set("Archive", "automatic", "on");
    saveAs(archives.folder.write("saved.dat", "no recording"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return notices().has(QStringLiteral("archive added")); }, 10000));
    EXPECT_TRUE(
        notices().text(QStringLiteral("archive added")).startsWith(QStringLiteral("Not in the archive: ")));
}

TEST_F(ArchiveCommands, IsNeverMentionedWithoutAnArchive) {
    saveAs("/work/b.dat");
    EXPECT_FALSE(notices().has(QStringLiteral("archive automatic")));
    EXPECT_EQ(settings.get("Archive", "automatic"), "");
}

} // namespace
} // namespace tally
