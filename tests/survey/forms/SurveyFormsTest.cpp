// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/forms/LoadSurv.h"

#include "core/Fault.h"
#include "support/FixedClock.h"
#include "support/MemoryFiles.h"
#include "support/QueuedPrompt.h"
#include "survey/Peaks.h"
#include "survey/SurveySample.h"
#include "survey/forms/Station.h"
#include "survey/forms/SurveyShow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::dataFile;

const std::vector<const char*> allControls = {
    "Option1",        "Option2", "Option3",        "Option4", "Command1", "Text1",    "Text2",    "Text3",
    "Text4",          "red",     "white",          "blue",    "Command2", "Command3", "Command4", "Command5",
    "previewFeeders", "Cancel",  "previewStation", "notices"};

class SurveyForms : public ::testing::Test {
protected:
    SurveyData survey;
    testing::MemoryFiles files;
    testing::QueuedPrompt prompt;
    testing::FixedClock clock;
    std::vector<SurveyPaper> printed;
    std::vector<SurveyPaper> previewed;
    std::vector<std::string> faults;
    std::vector<QString> dialogs; // object name and report of each that was shown
    std::unique_ptr<LoadSurv> form;

    void SetUp() override {
        files.contents["/d/r.dat"] = dataFile({10, 500, 20});
        files.contents["/d/w.dat"] = dataFile({11, 210, 610});
        files.contents["/d/b.dat"] = dataFile({720, 320, 120});
        survey.stationName = "NORTH";
        form = std::make_unique<LoadSurv>(
            survey, SurveyServices{files, prompt, clock, "/d",
                                   [this](const SurveyPaper& paper) { printed.push_back(paper); },
                                   [this](const SurveyPaper& paper) { previewed.push_back(paper); },
                                   [this](const std::function<Expected<void>()>& step) {
                                       try {
                                           if (const auto done = step(); !done)
                                               prompt.tell(done.error().message());
                                       } catch (const Fault& fault) {
                                           faults.emplace_back(fault.what());
                                       }
                                   }});
        form->show();
    }

    template <typename Control = QAbstractButton>
    Control* control(const char* name) const {
        auto* found = form->findChild<Control*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    // Clicks a button; a dialog that it opens is noted and closed by its own button.
    void click(const char* name) {
        QTimer closer;
        closer.setInterval(0);
        QObject::connect(&closer, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            dialogs.push_back(dialog->objectName() + QLatin1Char('\n') +
                              dialog->findChild<QPlainTextEdit*>()->toPlainText());
            dialog->findChild<QAbstractButton*>()->click();
        });
        closer.start();
        QTest::mouseClick(control(name), Qt::LeftButton);
    }
    void load(const char* phase, const std::string& path) {
        prompt.files.push_back(path);
        click(phase);
    }
    void loadAll() {
        load("red", "/d/r.dat");
        load("white", "/d/w.dat");
        load("blue", "/d/b.dat");
    }
    std::string enabled() const {
        std::string names;
        for (const char* name : allControls) {
            const auto* widget = form->findChild<QWidget*>(QString::fromLatin1(name));
            if (qobject_cast<const QAbstractButton*>(widget) && widget->isEnabled())
                names += std::string(name) + " ";
        }
        return names;
    }
    QString text(const char* name) const { return control<QLineEdit>(name)->text(); }
};

TEST_F(SurveyForms, EveryControlIsThereUnderItsNameAndCanBeTold) {
    EXPECT_EQ(form->objectName(), QStringLiteral("loadsurv"));
    for (const char* name : allControls) {
        auto* widget = control<QWidget>(name);
        ASSERT_NE(widget, nullptr) << name;
        const auto* accessible = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(accessible, nullptr) << name;
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << name;
    }
    EXPECT_EQ(control<QLabel>("Label1")->text(), QStringLiteral("Station Name"));
    EXPECT_EQ(control<QLabel>("Label2")->text(), QStringLiteral("NORTH"));
    EXPECT_EQ(control<QLabel>("Label3")->text(), QStringLiteral("EnterFeeder Name or use default"));
}

TEST_F(SurveyForms, CaptionsAreTheFixedOnes) {
    const std::pair<const char*, const char*> captions[] = {{"Option1", "Feeder1"},
                                                            {"Option2", "Feeder2"},
                                                            {"Option3", "Feeder3"},
                                                            {"Option4", "Feeder4"},
                                                            {"Command1", "PROCEED"},
                                                            {"red", "Red  Phase"},
                                                            {"white", "WhitePhase"},
                                                            {"blue", "Blue Phase"},
                                                            {"Command2", "Show Result"},
                                                            {"Command3", "Show Station Peak"},
                                                            {"Command4", "PRINT ALL FEEDER RESULTS"},
                                                            {"Command5", "PRINT STATION PEAK"},
                                                            {"Cancel", "Cancel"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(control(name)->text(), QString::fromLatin1(caption));
}

TEST_F(SurveyForms, AFeederGoesThroughItsStepsToResultAndStationPeak) {
    EXPECT_EQ(enabled(), "Option1 Option2 Option3 Option4 Command1 Cancel ");
    click("Command1");
    EXPECT_EQ(enabled(), "Option2 Option3 Option4 Command1 red white blue Cancel ");
    load("red", "/d/r.dat");
    EXPECT_EQ(enabled(), "Option2 Option3 Option4 white blue Cancel ");
    EXPECT_EQ(text("Text1"), QStringLiteral("/d/r.dat"));
    load("white", "/d/w.dat");
    load("blue", "/d/b.dat");
    EXPECT_EQ(text("Text3"), QStringLiteral("/d/b.dat"));
    EXPECT_EQ(enabled(), "Option2 Option3 Option4 Command2 Cancel ");
    click("Command2");
    EXPECT_EQ(text("Text1") + text("Text2") + text("Text3"), QString());
    EXPECT_EQ(enabled(), "Option2 Option3 Option4 Command1 Command3 Command4 previewFeeders Cancel ");
    EXPECT_TRUE(control("Option2")->isChecked());
    click("Command3");
    EXPECT_EQ(enabled(), "Option2 Option3 Option4 Command1 Command3 Command4 Command5 previewFeeders Cancel "
                         "previewStation ");
    ASSERT_EQ(dialogs.size(), 2U);
    EXPECT_TRUE(
        dialogs[0].startsWith(QStringLiteral("surveyshow\n\t\tAmps          Peak Time;  Date\nRED     ")));
    // 103.0 A at the second reading.
    EXPECT_TRUE(dialogs[1].startsWith(QStringLiteral("station\n")));
    EXPECT_TRUE(dialogs[1].contains(QStringLiteral(" 0050           0021         0032")));
}

TEST_F(SurveyForms, ATypedNameIsTakenAndTheFieldEmptiedForTheNextFeeder) {
    control<QLineEdit>("Text4")->setText(QStringLiteral("Mill Lane"));
    click("Command1");
    EXPECT_EQ(survey.feederNames[0], "Mill Lane");
    loadAll();
    click("Command2");
    EXPECT_EQ(text("Text4"), QString());
    EXPECT_EQ(control<QLineEdit>("Text4")->placeholderText(), QStringLiteral("Feeder2"));
    click("Command1");
    EXPECT_EQ(survey.feederNames[1], "Feeder2");
}

TEST_F(SurveyForms, TheNextFeederNameCanBeTypedAtOnce) {
    EXPECT_EQ(form->focusWidget(), control<QLineEdit>("Text4"));
    click("Command1");
    EXPECT_EQ(form->focusWidget(), control("red"));
    loadAll();
    EXPECT_EQ(form->focusWidget(), control("Command2"));
    click("Command2");
    EXPECT_EQ(form->focusWidget(), control<QLineEdit>("Text4"));
}

TEST_F(SurveyForms, AfterTheLastFeederTheStationPeakIsNext) {
    for (int feeder = 0; feeder < feederCount; ++feeder) {
        click("Command1");
        loadAll();
        click("Command2");
    }
    EXPECT_EQ(form->focusWidget(), control("Command3"));
}

TEST_F(SurveyForms, EnterInTheFeederNameProceeds) {
    QTest::keyClick(control<QLineEdit>("Text4"), Qt::Key_Return);
    EXPECT_FALSE(control("Option1")->isEnabled());
    EXPECT_TRUE(control("red")->isEnabled());
}

TEST_F(SurveyForms, ACancelledFileDialogChangesNothing) {
    click("Command1");
    const std::string before = enabled();
    prompt.files.push_back(std::nullopt);
    click("red");
    EXPECT_EQ(enabled(), before);
    EXPECT_EQ(text("Text1"), QString());
}

TEST_F(SurveyForms, ARefusedFileIsToldAndItsButtonStays) {
    click("Command1");
    load("red", "/d/none.dat");
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_EQ(prompt.texts()[0].find("Unknown File Error; Check\r\n/d/none.dat\r\nFile not found. Check "),
              0U);
    EXPECT_TRUE(control("red")->isEnabled());
    EXPECT_TRUE(control("Command1")->isEnabled());
    EXPECT_TRUE(
        control<QLabel>("notices")->text().startsWith(QStringLiteral("none.dat: File not found. Check ")));
}

TEST_F(SurveyForms, NoticesStayVisibleAndArePrinted) {
    EXPECT_FALSE(control<QLabel>("notices")->isVisible());
    click("Command1");
    load("red", "/d/r.dat");
    load("white", "/d/r.dat");
    load("blue", "/d/b.dat");
    const QString notice = QStringLiteral("Feeder1, white phase: r.dat is also taken for Feeder1, red phase");
    click("Command2");
    EXPECT_TRUE(control<QLabel>("notices")->isVisible());
    EXPECT_EQ(control<QLabel>("notices")->text(), notice);
    click("Command4");
    ASSERT_EQ(printed.size(), 1U);
    EXPECT_NE(printed[0].text.find(notice.toStdString()), std::string::npos);
}

TEST_F(SurveyForms, ReportsArePrintedAndPreviewedWithTheDateOfTheClock) {
    click("Command1");
    loadAll();
    click("Command2");
    click("Command3");
    click("Command4");
    click("Command5");
    click("previewFeeders");
    click("previewStation");
    ASSERT_EQ(printed.size(), 2U);
    ASSERT_EQ(previewed.size(), 2U);
    EXPECT_EQ(printed[0].title, feedersPaper(survey, clock.time).title);
    EXPECT_EQ(printed[0].text, feedersPaper(survey, clock.time).text);
    EXPECT_EQ(printed[1].text, stationPaper(survey, clock.time).text);
    EXPECT_EQ(previewed[0].text, printed[0].text);
    EXPECT_EQ(previewed[1].text, printed[1].text);
}

TEST_F(SurveyForms, AnOverflowIsReportedAndTheDialogGoesOn) {
    files.contents["/d/big.dat"] = dataFile({9999, 9999, 9999});
    for (int feeder = 0; feeder < 2; ++feeder) {
        click("Command1");
        for (const char* phase : {"red", "white", "blue"})
            load(phase, "/d/big.dat");
        click("Command2");
    }
    dialogs.clear();
    click("Command3");
    EXPECT_EQ(faults, std::vector<std::string>{"Overflow"});
    EXPECT_TRUE(dialogs.empty());
    EXPECT_EQ(enabled(), "Option3 Option4 Command1 Command3 Command4 previewFeeders Cancel ");
    click("Command1");
    EXPECT_TRUE(control("red")->isEnabled());
}

TEST_F(SurveyForms, CancelClosesTheDialogAndTheStoresStay) {
    click("Command1");
    loadAll();
    click("Cancel");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(survey.isLoaded(0));
}

TEST_F(SurveyForms, TheResultDialogHasItsTexts) {
    testing::fillFeeder(survey, 2, {10}, {20}, {30});
    survey.feederNames[2] = "Mill Lane";
    survey.feederPeaks[2] = feederPeaksOf(survey.feeders[2]);
    const SurveyShow dialog(survey, 2);
    EXPECT_EQ(dialog.objectName(), QStringLiteral("surveyshow"));
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("RESULT"));
    const auto label = [&](const char* name) {
        return dialog.findChild<QLabel*>(QString::fromLatin1(name))->text();
    };
    EXPECT_EQ(label("Label1"), QStringLiteral("TARNWELL STATION FEEDER REPORT"));
    EXPECT_EQ(label("Label2"), QStringLiteral("STATION: NORTH"));
    EXPECT_EQ(label("feederID"), QStringLiteral("  F3: Mill Lane"));
    EXPECT_EQ(label("Label3"), QStringLiteral("FEEDER AMPS DURING FEEDER PEAK (NON-COINCIDENTAL)  "));
    EXPECT_EQ(dialog.findChild<QAbstractButton*>(QStringLiteral("Command2"))->text(),
              QStringLiteral("NEXT FEEDER"));
}

TEST_F(SurveyForms, TheStationDialogHasItsTexts) {
    testing::fillFeeder(survey, 0, {10}, {20}, {30});
    findStationPeak(survey);
    const Station dialog(survey);
    EXPECT_EQ(dialog.objectName(), QStringLiteral("station"));
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Station Peak"));
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
              QStringLiteral("Feeder Phase Amps During Station Peak (Coincidental Peak)"));
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("Label2"))->text(), QStringLiteral("NORTH"));
    EXPECT_EQ(dialog.findChild<QAbstractButton*>(QStringLiteral("Command1"))->text(),
              QStringLiteral("CLOSE WINDOW"));
}

} // namespace
} // namespace tally
