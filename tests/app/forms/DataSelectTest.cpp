// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/DataSelect.h"

#include "support/QueuedPrompt.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <gmock/gmock.h>

namespace tally {
namespace {

using ::testing::HasSubstr;

class DataSelectTest : public ::testing::Test {
protected:
    Recordings recordings;
    tally::testing::QueuedPrompt prompt;

    DataSelectTest() {
        recordings.gInfo[0].path = "/data/red.dat";
        recordings.gInfo[1].path = "/data/station/white.dat";
        recordings.gInfo[1].count = 5;
        recordings.gNotes[1][1] = "Feeder 7";
    }
    static QListWidget& list(DataSelect& form) {
        return *form.findChild<QListWidget*>(QStringLiteral("List1"));
    }
    static void press(DataSelect& form, const char* name) {
        form.findChild<QPushButton*>(QString::fromLatin1(name))->click();
    }
};

TEST_F(DataSelectTest, ListHoldsThreeLinesEmptyOnesIncluded) {
    DataSelect form(recordings, prompt);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Select Data"));
    ASSERT_EQ(list(form).count(), 3);
    EXPECT_EQ(list(form).item(1)->text(), QStringLiteral("/data/station/white.dat"));
    EXPECT_EQ(list(form).item(2)->text(), QString());
}

TEST_F(DataSelectTest, OkGivesTheChosenSlot) {
    DataSelect form(recordings, prompt);
    list(form).setCurrentRow(1);
    press(form, "Command1");
    EXPECT_EQ(form.ginx(), 1);
}

TEST_F(DataSelectTest, EmptyLineSaysNoSelectionAndKeepsTheChoice) {
    DataSelect form(recordings, prompt);
    list(form).setCurrentRow(1);
    list(form).setCurrentRow(2);
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_EQ(prompt.shown[0].text, "No Selection Made\r  Click on filename");
    EXPECT_EQ(prompt.shown[0].title, "Error");
    press(form, "Command1");
    EXPECT_EQ(form.ginx(), 1);
}

TEST_F(DataSelectTest, CancelAndCloseGiveMinusTwo) {
    DataSelect form(recordings, prompt);
    list(form).setCurrentRow(1);
    press(form, "Command2");
    EXPECT_EQ(form.ginx(), -2);
    DataSelect closed(recordings, prompt);
    closed.close();
    EXPECT_EQ(closed.ginx(), -2);
}

TEST_F(DataSelectTest, ScrollBarRunsFromOneToTheLongestPathAndMovesTheText) {
    DataSelect form(recordings, prompt);
    auto* scroll = form.findChild<QScrollBar*>(QStringLiteral("HScroll1"));
    EXPECT_EQ(scroll->minimum(), 1);
    EXPECT_EQ(scroll->maximum(), 23); // of "/data/station/white.dat"
    scroll->setValue(7);
    EXPECT_EQ(list(form).item(0)->text(), QStringLiteral("red.dat"));
    EXPECT_EQ(list(form).item(1)->text(), QStringLiteral("station/white.dat"));
    scroll->setValue(1);
    EXPECT_EQ(list(form).item(0)->text(), QStringLiteral("/data/red.dat"));
}

TEST_F(DataSelectTest, ScrollBarOfEmptyPathsHasAtLeastOnePlace) {
    const Recordings empty;
    DataSelect form(empty, prompt);
    EXPECT_EQ(form.findChild<QScrollBar*>(QStringLiteral("HScroll1"))->maximum(), 1);
}

TEST_F(DataSelectTest, ScrollDataTellsOfTheChosenFile) {
    DataSelect form(recordings, prompt);
    list(form).setCurrentRow(1);
    press(form, "Command3");
    const auto text = form.findChild<QLabel*>(QStringLiteral("scrollData"))->text().toStdString();
    EXPECT_THAT(text, HasSubstr("/data/station/white.dat"));
    EXPECT_THAT(text, HasSubstr("5 readings, range HIGH"));
    EXPECT_THAT(text, HasSubstr("Circuit: Feeder 7"));
}

TEST_F(DataSelectTest, ChooserShowsTheFormAndGivesItsAnswer) {
    AppSlotChooser chooser(prompt);
    QTimer::singleShot(0, [] {
        auto* form = dynamic_cast<DataSelect*>(QApplication::activeModalWidget());
        ASSERT_NE(form, nullptr);
        list(*form).setCurrentRow(1);
        press(*form, "Command1");
    });
    SelectFile(recordings, chooser);
    EXPECT_EQ(recordings.ginx, 1);
}

TEST_F(DataSelectTest, OneOpenFileIsTakenWithoutAList) {
    recordings.gInfo[1].path.clear();
    AppSlotChooser chooser(prompt);
    SelectFile(recordings, chooser);
    EXPECT_EQ(recordings.ginx, 0);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace tally
