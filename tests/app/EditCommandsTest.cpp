// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "app/forms/EditNotes.h"
#include "app/forms/ForceRdgs.h"
#include "core/Fileopen.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tally {
namespace {

using testing::dataFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::WindowTest;

template <typename Form>
QLineEdit& text(Form& form, const char* name) {
    return *form.template findChild<QLineEdit*>(QString::fromLatin1(name));
}

template <typename Form>
void press(Form& form, const char* name) {
    form.template findChild<QAbstractButton*>(QString::fromLatin1(name))->click();
}

class EditTest : public WindowTest {
protected:
    // Sixteen readings of 10 A, zoomed to the readings 4 to 7.
    void openZoomed(bool low = false, char mode = 'a') {
        open("/d/a.dat", dataFile(mode, std::vector<int>(16, 100), 'X', low));
        click("mnuItemViewPlot");
        mark(4, 7);
        click("mnuZoom");
    }
    void force(const char* value, const char* option = nullptr) {
        whenOpen<ForceRdgs>([value, option](ForceRdgs& form) {
            text(form, "Text1").setText(QString::fromLatin1(value));
            if (option)
                press(form, option);
            press(form, "Command1");
        });
        click("mnuItemForceRdg");
    }
    // The indexes that do not hold 10 A any more.
    std::vector<int> changed() const {
        std::vector<int> indexes;
        for (int i = 0; i < int(recordings.gReadings[0].size()); ++i)
            if (recordings.gReadings[0][std::size_t(i)] != 100)
                indexes.push_back(i);
        return indexes;
    }
    bool closes() {
        QCloseEvent close;
        QApplication::sendEvent(&window, &close);
        return close.isAccepted();
    }
};

TEST_F(EditTest, ForcingChangesTheZoomedRangeAndSaysSoWithUndo) {
    openZoomed();
    force("50");
    EXPECT_THAT(changed(), ElementsAre(4, 5, 6, 7));
    EXPECT_EQ(recordings.gReadings[0][4], 500);
    EXPECT_TRUE(recordings.gInfo[0].forced);
    EXPECT_THAT(window.notices().text(QStringLiteral("forced")).toStdString(),
                HasSubstr("a.dat: 4 forced readings,"));
    EXPECT_EQ(window.screen().chart().plot().series.at(0).values.at(0), 50.0F);
    window.findChild<QAction*>(QStringLiteral("undoForced"))->trigger();
    EXPECT_TRUE(changed().empty());
    EXPECT_FALSE(window.notices().has(QStringLiteral("forced")));
    EXPECT_EQ(window.screen().chart().plot().series.at(0).values.at(0), 10.0F);
}

TEST_F(EditTest, LeftmostAndRightmostForceOneReading) {
    openZoomed();
    force("50", "Option2");
    EXPECT_THAT(changed(), ElementsAre(4));
    force("50", "Option3");
    EXPECT_THAT(changed(), ElementsAre(4, 7));
}

TEST_F(EditTest, LastValueIsOfferedAgain) {
    openZoomed();
    std::string first;
    whenOpen<ForceRdgs>([&first](ForceRdgs& form) {
        first = form.value();
        text(form, "Text1").setText(QStringLiteral("12.5"));
        EXPECT_TRUE(form.findChild<QRadioButton*>(QStringLiteral("Option1"))->isChecked());
        press(form, "Command1");
    });
    click("mnuItemForceRdg");
    EXPECT_EQ(first, "0");
    whenOpen<ForceRdgs>([](ForceRdgs& form) {
        EXPECT_EQ(form.value(), "12.5");
        press(form, "Command2");
    });
    click("mnuItemForceRdg");
    EXPECT_EQ(recordings.gReadings[0][4], 125);
}

TEST_F(EditTest, TheDialogNamesTheFileAndCountsItsRange) {
    openZoomed();
    whenOpen<ForceRdgs>([](ForceRdgs& form) {
        EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("file"))->text(), QStringLiteral("/d/a.dat"));
        EXPECT_EQ(form.findChild<QRadioButton*>(QStringLiteral("Option1"))->text(),
                  QStringLiteral("All Readings (4)"));
        press(form, "Command2");
    });
    click("mnuItemForceRdg");
    EXPECT_TRUE(changed().empty());
}

struct Bound {
    bool low;
    const char* value;
    bool taken;
};
class ForceBounds : public EditTest, public ::testing::WithParamInterface<Bound> {};

TEST_P(ForceBounds, LimitsAreInclusive) {
    openZoomed(GetParam().low);
    force(GetParam().value);
    EXPECT_EQ(!changed().empty(), GetParam().taken);
    if (!GetParam().taken) {
        EXPECT_THAT(prompt.texts(),
                    ElementsAre(std::string("Error - New reading is outside the allowable range.\r\n"
                                            "  - Must be between 0 and ") +
                                (GetParam().low ? "99.9" : "999")));
    }
}

INSTANTIATE_TEST_SUITE_P(Values, ForceBounds,
                         ::testing::Values(Bound{false, "0", true}, Bound{false, "999", true},
                                           Bound{false, "999.1", false}, Bound{true, "99.9", true},
                                           Bound{true, "100", false}, Bound{false, "-1", false},
                                           Bound{false, "text", true}, Bound{false, "", true}));

TEST_F(EditTest, RangeBeyondSixteenBitsIsAnOverflowAndChangesNothing) {
    open("/d/c.dat", dataFile('c', std::vector<int>(32800, 100)));
    click("mnuItemViewPlot");
    force("5");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 6: Overflow"));
    EXPECT_TRUE(changed().empty());
}

TEST_F(EditTest, ForcingAfterACancelledListIsTheSoftwareError) {
    openZoomed();
    recordings.ginx = Recordings::cancelled;
    force("5");
    EXPECT_THAT(prompt.texts(), ElementsAre("Software error in ForceRdgs - 'ginx' is out of range"));
    EXPECT_TRUE(changed().empty());
}

TEST_F(EditTest, CloseWithUnsavedForcedReadingsAsksFirst) {
    openZoomed();
    force("50");
    prompt.answers = {Answer::No};
    click("mnuItemClose");
    EXPECT_TRUE(recordings.isOpen(0));
    EXPECT_THAT(prompt.shown.back().text, HasSubstr("a.dat"));
    EXPECT_EQ(prompt.shown.back().defaultAnswer, Answer::No);
    prompt.answers = {Answer::Yes};
    click("mnuItemClose");
    EXPECT_FALSE(recordings.isOpen(0));
    EXPECT_FALSE(window.notices().has(QStringLiteral("forced")));
}

TEST_F(EditTest, ExitWithUnsavedForcedReadingsAsksFirst) {
    openZoomed();
    force("50");
    prompt.answers = {Answer::No};
    EXPECT_FALSE(closes());
    prompt.answers = {Answer::Yes};
    EXPECT_TRUE(closes());
}

TEST_F(EditTest, SavedForcedReadingsAreNotAskedFor) {
    openZoomed();
    force("50");
    prompt.files.push_back("/d/out.dat");
    click("mnuItemSave");
    EXPECT_THAT(files.contents["/d/out.dat"], HasSubstr("  50  50  50  50\x1a"));
    EXPECT_FALSE(window.notices().has(QStringLiteral("forced")));
    EXPECT_TRUE(closes());
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(EditTest, SaveOfAnotherRangeDoesNotCount) {
    openZoomed();
    force("50", "Option2");
    click("mnuItemViewPlot");
    mark(8, 12);
    click("mnuZoom");
    prompt.files.push_back("/d/out.dat");
    click("mnuItemSave");
    EXPECT_TRUE(window.notices().has(QStringLiteral("forced")));
}

TEST_F(EditTest, UndoAfterASaveIsAgainUnsaved) {
    openZoomed();
    force("50");
    prompt.files.push_back("/d/out.dat");
    click("mnuItemSave");
    window.findChild<QAction*>(QStringLiteral("undoForced"))->trigger();
    EXPECT_THAT(window.notices().text(QStringLiteral("forced")).toStdString(),
                HasSubstr("a.dat: 4 readings taken back, not saved yet."));
    prompt.answers = {Answer::No};
    EXPECT_FALSE(closes());
    force("50");
    EXPECT_FALSE(window.notices().has(QStringLiteral("forced"))) << "the file holds what the window does";
    EXPECT_TRUE(closes());
}

TEST_F(EditTest, WithoutAZoomTheWholeOfTheChosenFileIsForced) {
    open("/d/a.dat", dataFile('a', std::vector<int>(96, 100)));
    open("/d/b.dat", dataFile('a', {100, 100}));
    chooser.answers = {0};
    click("mnuItemViewTable");
    whenOpen<ForceRdgs>([](ForceRdgs& form) {
        EXPECT_EQ(form.findChild<QRadioButton*>(QStringLiteral("Option1"))->text(),
                  QStringLiteral("All Readings (96)"));
        text(form, "Text1").setText(QStringLiteral("7"));
        press(form, "Command1");
    });
    click("mnuItemForceRdg");
    EXPECT_EQ(changed().size(), 96U);
}

TEST_F(EditTest, ForcingCountsTheReadingsThatTheFileHas) {
    open("/d/a.dat", dataFile('a', std::vector<int>(96, 100)));
    open("/d/b.dat", dataFile('a', {100, 100}));
    whenOpen<ForceRdgs>([](ForceRdgs& form) {
        EXPECT_EQ(form.findChild<QRadioButton*>(QStringLiteral("Option1"))->text(),
                  QStringLiteral("All Readings (2)"));
        press(form, "Command2");
    });
    click("mnuItemForceRdg");
}

TEST_F(EditTest, ForcingRenewsTheSummaryOnTheScreen) {
    openZoomed();
    click("mnuItemViewsummary");
    force("50");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("max       50.0"));
}

TEST_F(EditTest, SaveOfAZoomSaysWhichPartItWrites) {
    openZoomed();
    const FileFacts& info = recordings.info(0);
    const auto at = [&](int i) { return formatTime(timeOf(info, i), "%H:%M"); };
    const std::string part = "4 of 16 readings (" + at(4) + " to " + at(7) + ")";
    prompt.files.push_back("/d/out.dat");
    click("mnuItemSave");
    EXPECT_EQ(prompt.filesAsked.back().title, "Save " + part);
    EXPECT_EQ(window.notices().text(QStringLiteral("saved")).toStdString(),
              "out.dat holds " + part + " of a.dat.");
}

TEST_F(EditTest, PartOfAFileReplacesTheLongerOpenFileOnlyWhenAsked) {
    openZoomed();
    const std::string before = files.contents["/d/a.dat"];
    prompt.files = {"/d/a.dat"};
    prompt.answers = {Answer::No};
    click("mnuItemSave");
    EXPECT_THAT(prompt.shown.back().text, HasSubstr("Replace it by 4 of 16 readings ("));
    EXPECT_EQ(prompt.shown.back().defaultAnswer, Answer::No);
    EXPECT_EQ(files.contents["/d/a.dat"], before);
}

TEST_F(EditTest, TheNoticesButtonSavesTheWholeFile) {
    openZoomed();
    force("50", "Option2");
    prompt.files.push_back("/d/out.dat");
    auto* notice = window.notices().findChild<QWidget*>(QStringLiteral("notice"));
    ASSERT_NE(notice, nullptr);
    for (auto* button : notice->findChildren<QPushButton*>())
        if (button->text() == QStringLiteral("Save As..."))
            button->click();
    QApplication::processEvents();
    Recordings reopened;
    ASSERT_TRUE(Fileopen(reopened, files, "/d/out.dat"));
    EXPECT_EQ(reopened.gReadings[0], recordings.gReadings[0]);
    EXPECT_FALSE(window.notices().has(QStringLiteral("forced")));
}

TEST_F(EditTest, NotesAreSavedAndShownAgain) {
    open("/d/a.dat", dataFile('a', std::vector<int>(16, 100)));
    whenOpen<EditNotes>([](EditNotes& form) {
        EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("Label5"))->text(), QStringLiteral("/d/a.dat"));
        EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("Label1"))->text(), QStringLiteral("Location:"));
        EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("Label4"))->text(), QStringLiteral("Other:"));
        text(form, "Text1").setText(QStringLiteral("North"));
        text(form, "Text3").setText(QString::fromUtf8("Zoë"));
        press(form, "Command1");
    });
    click("mnuItemNotes");
    EXPECT_EQ(files.contents["/d/a.not"], "North\r\n\r\nZo\xEB\r\n\r\n");
    EXPECT_EQ(recordings.gNotes[0][0], "North");
    EXPECT_THAT(window.screen().text().text().toStdString(), HasSubstr("Loc:    North"));
    click("mnuItemClose");
    open("/d/a.dat", files.contents["/d/a.dat"]);
    EXPECT_EQ(recordings.gNotes[0], (std::array<std::string, 4>{"North", "", "Zoë", ""}));
}

TEST_F(EditTest, CancelledNotesChangeNothing) {
    open("/d/a.dat", dataFile('a', std::vector<int>(16, 100)));
    whenOpen<EditNotes>([](EditNotes& form) {
        text(form, "Text1").setText(QStringLiteral("North"));
        press(form, "Command2");
    });
    click("mnuItemNotes");
    EXPECT_FALSE(files.contents.contains("/d/a.not"));
    EXPECT_EQ(recordings.gNotes[0][0], "");
}

TEST_F(EditTest, NotesThatCannotBeWrittenComeBackToTheEditor) {
    open("/d/a.dat", dataFile('a', std::vector<int>(16, 100)));
    files.failWrite = fault::permissionDenied();
    whenOpen<EditNotes>([this](EditNotes& form) {
        text(form, "Text1").setText(QStringLiteral("North"));
        whenOpen<EditNotes>([](EditNotes& again) {
            EXPECT_EQ(text(again, "Text1").text(), QStringLiteral("North"));
            press(again, "Command2");
        });
        press(form, "Command1");
    });
    click("mnuItemNotes");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error number 70: Permission denied"));
    EXPECT_EQ(recordings.gNotes[0][0], "");
}

TEST_F(EditTest, NotesWithAnImpossibleFileSayTheSoftwareError) {
    open("/d/a.dat", dataFile('a', std::vector<int>(16, 100)));
    open("/d/b.dat", dataFile('a', std::vector<int>(16, 100)));
    chooser.answers = {3};
    click("mnuItemNotes");
    EXPECT_THAT(prompt.texts(),
                ElementsAre("Software error in mnuItemNotes_Click: \r\n   A case that couldn't "
                            "happen, happened."));
}

TEST_F(EditTest, NoteIsPlacedOnTheChartAndCleared) {
    openZoomed();
    click("mnuItemadd");
    ASSERT_EQ(window.screen().chart().notes().size(), 1U);
    EXPECT_EQ(window.screen().chart().notes()[0].text, "Enter note here");
    click("mnuItemClearNote");
    EXPECT_TRUE(window.screen().chart().notes().empty());
}

TEST_F(EditTest, AnnotateWithNothingOpenSaysSo) {
    openZoomed();
    click("mnuItemClose");
    click("mnuItemadd");
    EXPECT_THAT(prompt.texts(), ElementsAre("Error - No file available. Need to open a file."));
}

} // namespace
} // namespace tally
