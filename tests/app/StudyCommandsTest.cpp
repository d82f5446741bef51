// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowTest.h"

#include "study/forms/StudyForm.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>

namespace tally {
namespace {

using testing::dataFile;
using testing::WindowTest;

class StudyCommands : public WindowTest {
protected:
    std::vector<int> day = std::vector<int>(192, 100);

    void SetUp() override {
        day[100] = 400;
        window.show();
        open("/d/red.dat", dataFile('a', day));
    }
    study::StudyForm* form() { return window.findChild<study::StudyForm*>(QStringLiteral("LoadStudy")); }
    std::string figures() {
        form()->findChild<QPushButton*>(QStringLiteral("copyFigures"))->click();
        return QApplication::clipboard()->text().toStdString();
    }
};

TEST_F(StudyCommands, TheStudyIsShownInTheWindow) {
    click("mnuItemViewStudy");
    ASSERT_NE(form(), nullptr);
    EXPECT_TRUE(form()->isVisible());
    EXPECT_EQ(window.screen().displaying(), "load study of red.dat");
    EXPECT_THAT(figures(), ::testing::HasSubstr("40.0"));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(StudyCommands, AButtonBesideThePlotOpensIt) {
    click("mnuItemViewPlot");
    window.findChild<QAction*>(QStringLiteral("chartStudy"))->trigger();
    ASSERT_NE(form(), nullptr);
    EXPECT_TRUE(form()->isVisible());
}

TEST_F(StudyCommands, ATimeOfThePageIsShownInTheDataPlot) {
    click("mnuItemViewStudy");
    Q_EMIT form()->timeChosen(timeOf(recordings.info(0), 100).minutes);
    EXPECT_EQ(window.screen().page(), Screen::Page::chart);
    EXPECT_EQ(display.view(), View::dataPlot);
    EXPECT_EQ(display.displayed(recordings), (Range{52, 148})); // twelve hours to either side
    click("mnuItemViewStudy");
    EXPECT_TRUE(form()->isVisible());
}

TEST_F(StudyCommands, ATimeIsShownInAllFilesByTimeWhenTheyStartApart) {
    open("/d/white.dat", dataFile('a', day, 'X', false, "03-15-24 11:00"));
    click("mnuItemViewStudy");
    Q_EMIT form()->timeChosen(timeOf(recordings.info(0), 100).minutes);
    EXPECT_TRUE(display.byTime());
    EXPECT_EQ(display.displayed(recordings), (Range{52, 148}));
    EXPECT_THAT(window.findChild<NoticeBar*>()->text(QStringLiteral("together")).toStdString(),
                ::testing::StartsWith("Readings are combined by time"));
}

TEST_F(StudyCommands, FilesThatStartTogetherStayByNumber) {
    open("/d/white.dat", dataFile('a', day));
    click("mnuItemViewStudy");
    Q_EMIT form()->timeChosen(timeOf(recordings.info(0), 100).minutes);
    EXPECT_FALSE(display.byTime());
}

TEST_F(StudyCommands, CloseTakesTheStudyAway) {
    click("mnuItemViewStudy");
    click("mnuItemClose");
    EXPECT_EQ(window.screen().page(), Screen::Page::start);
    EXPECT_FALSE(enabled("mnuItemViewStudy"));
    EXPECT_FALSE(form()->findChild<QPushButton*>(QStringLiteral("savePdf"))->isEnabled());
    // An option has nothing to be applied to.
    form()->findChild<QLineEdit*>(QStringLiteral("high"))->setText(QStringLiteral("5"));
}

} // namespace
} // namespace tally
