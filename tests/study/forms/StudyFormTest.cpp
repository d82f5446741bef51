// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/StudyForm.h"

#include "core/Fault.h"
#include "core/TimeAxis.h"
#include "core/Workbook.h"
#include "study/forms/StudyPage.h"
#include "support/FixedClock.h"
#include "support/MemoryFiles.h"
#include "support/MemorySettings.h"
#include "support/QueuedPrompt.h"
#include "support/SampleFile.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tally::study {
namespace {

using tally::testing::addFile;
using tally::testing::constant;

class StudyForms : public ::testing::Test {
protected:
    tally::testing::MemoryFiles files;
    tally::testing::QueuedPrompt prompt;
    tally::testing::MemorySettings settings;
    tally::testing::FixedClock clock;
    Recordings recordings;
    std::vector<std::string> faults;
    std::vector<std::string> sheets;
    std::unique_ptr<StudyForm> form;

    void make() {
        form = std::make_unique<StudyForm>(StudyServices{files, prompt, settings, clock,
                                                         [this](const Workbook& workbook) {
                                                             for (const Sheet& sheet : workbook.sheets)
                                                                 sheets.push_back(sheet.name);
                                                             return std::string("workbook");
                                                         },
                                                         [this](const std::function<void()>& step) {
                                                             try {
                                                                 step();
                                                             } catch (const Fault& fault) {
                                                                 faults.emplace_back(fault.what());
                                                             }
                                                         }});
        form->resize(1000, 700);
        form->show();
    }
    void SetUp() override {
        std::vector<std::int16_t> day = constant(192, 100);
        day[60] = 300;
        addFile(recordings, "red.dat", day, {.start = toReadingTime({2024, 3, 4, 0, 0})});
        make();
    }
    template <typename Control>
    Control* control(const char* name) const {
        auto* found = form->findChild<Control*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void click(const char* name) { control<QPushButton>(name)->click(); }
    void type(const char* name, const char* text) {
        control<QLineEdit>(name)->setText(QString::fromLatin1(text));
    }
    std::string copied() {
        click("copyFigures");
        return QApplication::clipboard()->text().toStdString();
    }
};

TEST_F(StudyForms, FiguresCanBeCopied) {
    EXPECT_FALSE(control<QPushButton>("copyFigures")->isEnabled());
    form->study(recordings, {});
    const std::string text = copied();
    EXPECT_NE(text.find("Load study\n"), std::string::npos);
    EXPECT_NE(text.find("2024-03-04 15:00"), std::string::npos);
}

TEST_F(StudyForms, AnOptionIsAppliedAtOnceAndKept) {
    form->study(recordings, {});
    type("high", "20");
    EXPECT_EQ(settings.get("Study", "high"), "20");
    EXPECT_NE(copied().find("15 min above 20 A in 1 run."), std::string::npos);
    control<QComboBox>("window")->setCurrentText(QStringLiteral("60"));
    EXPECT_NE(copied().find("Demand, 60 min"), std::string::npos);
    make();
    form->study(recordings, {});
    EXPECT_NE(copied().find("Demand, 60 min"), std::string::npos);
    EXPECT_EQ(control<QLineEdit>("high")->text(), QStringLiteral("20"));
}

TEST_F(StudyForms, WhatMakesNoSenseIsSaidAndThePageStays) {
    form->study(recordings, {});
    type("high", "20");
    type("low", "25");
    EXPECT_EQ(control<QLabel>("optionProblem")->text(), QStringLiteral("'20' is not above the low limit"));
    EXPECT_NE(copied().find("15 min above 20 A in 1 run."), std::string::npos);
    type("low", "");
    EXPECT_EQ(control<QLabel>("optionProblem")->text(), QString());
}

TEST_F(StudyForms, WhatMakesNoSenseTakesThePageOfOtherReadingsAway) {
    form->study(recordings, {});
    type("high", "many");
    EXPECT_TRUE(control<QPushButton>("savePdf")->isEnabled());
    recordings.gReadings[0][60] = 900;
    form->study(recordings, {});
    EXPECT_FALSE(control<QPushButton>("savePdf")->isEnabled());
    EXPECT_EQ(control<QLabel>("studyRefusal")->text(), control<QLabel>("optionProblem")->text());
    EXPECT_FALSE(control<QLabel>("studyRefusal")->isHidden());
    type("high", "");
    EXPECT_TRUE(control<QLabel>("studyRefusal")->isHidden());
    EXPECT_NE(copied().find("90.0"), std::string::npos);
}

TEST_F(StudyForms, WhatOverflowsIsSaidOnThePageAndCanBeTakenBack) {
    for (const char* name : {"white.dat", "blue.dat"})
        addFile(recordings, name, constant(192, 32767), {.start = toReadingTime({2024, 3, 4, 0, 0})});
    settings.set("Study", "volts", "13800");
    make();
    form->study(recordings, {});
    EXPECT_TRUE(faults.empty());
    EXPECT_EQ(control<QLabel>("studyRefusal")->text(), QStringLiteral("Overflow"));
    EXPECT_FALSE(control<QPushButton>("savePdf")->isEnabled());
    type("volts", "");
    EXPECT_TRUE(control<QPushButton>("savePdf")->isEnabled());
    EXPECT_TRUE(control<QLabel>("studyRefusal")->isHidden());
}

TEST_F(StudyForms, LimitsOfAmpsAreNoneOfVolts) {
    form->study(recordings, {});
    type("high", "400");
    recordings.closeAll();
    addFile(recordings, "v.dat", constant(96, 1200), {.type = 'V'});
    form->study(recordings, {});
    EXPECT_EQ(control<QLineEdit>("high")->text(), QString());
    type("high", "126");
    recordings.closeAll();
    addFile(recordings, "red.dat", constant(96, 1200));
    form->study(recordings, {});
    EXPECT_EQ(control<QLineEdit>("high")->text(), QStringLiteral("400"));
    EXPECT_EQ(settings.get("Study", "highV"), "126");
}

TEST_F(StudyForms, OnlyWindowsThatFitAreOffered) {
    form->study(recordings, {});
    auto* window = control<QComboBox>("window");
    QStringList offered;
    for (int i = 0; i < window->count(); ++i)
        offered << window->itemText(i);
    EXPECT_EQ(offered, QStringList({QStringLiteral("15"), QStringLiteral("30"), QStringLiteral("60")}));
    EXPECT_EQ(window->currentText(), QStringLiteral("15"));
}

TEST_F(StudyForms, VoltsHaveNoCapacityAndNoPower) {
    settings.set("Study", "rating", "100");
    settings.set("Study", "volts", "13800");
    recordings.closeAll();
    addFile(recordings, "v.dat", constant(96, 1200), {.type = 'V'});
    make();
    form->study(recordings, {});
    EXPECT_FALSE(control<QLineEdit>("rating")->isEnabled());
    EXPECT_FALSE(control<QLineEdit>("volts")->isEnabled());
    EXPECT_NE(copied().find("120.0"), std::string::npos);
}

TEST_F(StudyForms, FilesWithoutACommonTimeAreRefusedOnThePage) {
    addFile(recordings, "later.dat", constant(4, 100), {.start = toReadingTime({2025, 1, 1, 0, 0})});
    form->study(recordings, {});
    EXPECT_FALSE(control<QPushButton>("savePdf")->isEnabled());
    EXPECT_TRUE(control<QLabel>("studyRefusal")
                    ->text()
                    .startsWith(QStringLiteral("The files have no reading in common")));
}

TEST_F(StudyForms, AStudyIsSavedAsPdfWorkbookAndPicture) {
    form->study(recordings, {});
    prompt.files = {"/d/s.pdf", "/d/s.xlsx", "/d/s.png", std::nullopt};
    click("savePdf");
    click("saveXlsx");
    click("savePicture");
    click("savePdf");
    EXPECT_EQ(files.contents["/d/s.pdf"].substr(0, 5), "%PDF-");
    EXPECT_EQ(files.contents["/d/s.xlsx"], "workbook");
    EXPECT_EQ(sheets.size(), 8U);
    EXPECT_EQ(files.contents["/d/s.png"].substr(1, 3), "PNG");
    EXPECT_TRUE(faults.empty());
}

TEST_F(StudyForms, AClickOnAPlotGoesToItsTime) {
    form->study(recordings, {});
    auto* page = control<StudyPage>("studyPage");
    QSignalSpy chosen(form.get(), &StudyForm::timeChosen);
    // Every place of the page is tried: some lie on the plot over time, the map and the times of the table.
    page->viewport()->grab();
    for (int y = 0; y < page->viewport()->height(); y += 7)
        QTest::mouseClick(page->viewport(), Qt::LeftButton, {}, QPoint(page->viewport()->width() / 2, y));
    ASSERT_GT(chosen.count(), 0);
    for (const auto& arguments : chosen) {
        const auto minutes = arguments.at(0).toLongLong();
        EXPECT_GE(minutes, toReadingTime({2024, 3, 4, 0, 0}).minutes);
        EXPECT_LT(minutes, toReadingTime({2024, 3, 6, 0, 0}).minutes);
    }
}

TEST_F(StudyForms, ThePageScrollsThroughAllOfIt) {
    form->study(recordings, {});
    auto* page = control<StudyPage>("studyPage");
    const int last = page->verticalScrollBar()->maximum();
    EXPECT_GT(last, 300);
    for (int at = 0; at <= last; at += 200) {
        page->verticalScrollBar()->setValue(at);
        page->viewport()->grab();
    }
    form->clear();
    EXPECT_EQ(page->verticalScrollBar()->maximum(), 0);
}

} // namespace
} // namespace tally::study
