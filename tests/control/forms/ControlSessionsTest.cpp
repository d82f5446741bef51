// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/forms/Abort.h"
#include "control/forms/Recover.h"

#include "link/forms/LinkSupport.h"

#include <QProgressBar>

namespace tally {
namespace {

using namespace testing;

const std::string connected = instrumentHeader("PQX", 'C') + "\r\n";

// The instrument's end of an initialization.
void answerInitialization(SessionBench& bench) {
    bench.line.onOpen = [&bench](const std::string&) {
        bench.waiter.after(10, [&bench] { bench.line.send(connected); });
    };
    bench.line.onOutput = [&bench](const std::string& characters) {
        const std::string answer = characters.size() == 1 ? "T" : instrumentHeader("PQX", 'l') + "\x1a";
        bench.waiter.after(100, [&bench, answer] { bench.line.send(answer); });
    };
}

void proceed(const char* option) {
    soon([option] {
        QDialog* form = shownDialog("InitInst");
        click(*form, "Option5");
        click(*form, "Option7");
        click(*form, option);
        click(*form, "Command1");
    });
}

TEST(ControlSessions, InitializesWithTheChosenOptions) {
    SessionBench bench(7);
    answerInitialization(bench);
    bench.prompt.answers = {Answer::Ok, Answer::Ok, Answer::No}; // warning, connection, another
    std::string label;
    bench.prompt.onMessage = [&](const Message& message) {
        if (message.buttons == Buttons::YesNo)
            label = labelText(*shownDialog("Abort"), "Label1");
    };
    proceed("Option3");
    runInitialize(nullptr, bench.context);
    EXPECT_EQ(bench.line.written, "\t03-15-24 14:05 f1\r");
    EXPECT_EQ(label, "INITIALIZING...\n  - May take around 15 seconds\n\n(You can cancel at any time)\n"
                     "IMode$=X\nInitstring=03-15-24 14:05 f1\n\nInstrument is initializing...");
    EXPECT_TRUE(bench.journal.receptions.empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(ControlSessions, IsNotShownBeforeTheConnectionPromptIsAnswered) {
    SessionBench bench(7);
    bench.prompt.answers = {Answer::Ok, Answer::Cancel};
    bool shownEarly = false;
    bench.prompt.onMessage = [&](const Message&) {
        for (const QWidget* widget : QApplication::topLevelWidgets())
            shownEarly =
                shownEarly || (widget->isVisible() && widget->objectName() == QStringLiteral("Abort"));
    };
    proceed("Option1");
    runInitialize(nullptr, bench.context);
    EXPECT_FALSE(shownEarly);
}

TEST(ControlSessions, CancelOfTheOptionsSendsNothing) {
    SessionBench bench(7);
    bench.prompt.answers = {Answer::Ok};
    soon([] { click(*shownDialog("InitInst"), "Command2"); });
    runInitialize(nullptr, bench.context);
    EXPECT_EQ(bench.line.written, "");
}

TEST(ControlSessions, CancelOfTheWarningShowsNoOptions) {
    SessionBench bench(7);
    bench.prompt.answers = {Answer::Cancel};
    runInitialize(nullptr, bench.context);
    EXPECT_TRUE(bench.line.calls.empty());
}

TEST(ControlSessions, CANCELEscapeAndClosingRequestACancelAtEveryMoment) {
    for (int way = 0; way < 3; ++way) {
        SessionBench bench(7);
        answerInitialization(bench);
        bench.line.onOutput = [](const std::string&) {}; // never a "T"
        bench.prompt.answers = {Answer::Ok, Answer::Ok, Answer::Cancel};
        bench.waiter.at(5000, [&] {
            QDialog* dialog = shownDialog("Abort");
            EXPECT_EQ(named(*dialog, "Command1")->text(), QStringLiteral("CANCEL"));
            if (way == 0)
                click(*dialog, "Command1");
            else if (way == 1)
                QTest::keyClick(dialog, Qt::Key_Escape);
            else
                dialog->close();
            EXPECT_TRUE(dialog->isVisible());
        });
        proceed("Option1");
        runInitialize(nullptr, bench.context);
        EXPECT_EQ(bench.line.written, "\t") << way;
        EXPECT_FALSE(bench.line.isOpen());
    }
}

TEST(ControlSessions, HasItsDesignTextUntilTheFirstOne) {
    SessionBench bench(7);
    const Abort dialog(bench.context, nullptr);
    EXPECT_EQ(labelText(dialog, "Label1"), "NO REPONSE");
    EXPECT_FALSE(dialog.isVisible());
}

TEST(ControlSessions, TheOptionsShowTheJournalsLine) {
    SessionBench bench(7);
    bench.journal.begin({});
    bench.journal.append("PQX");
    bench.journal.end(JournalState::received);
    bench.prompt.answers = {Answer::Ok};
    std::string line;
    soon([&line] {
        QDialog* form = shownDialog("InitInst");
        line = labelText(*form, "KnownDownloads");
        click(*form, "Command2");
    });
    runInitialize(nullptr, bench.context);
    EXPECT_NE(line.find("NOT SAVED YET"), std::string::npos);
}

TEST(ControlSessions, PromptsThenRecovers) {
    SessionBench bench(7);
    std::string text = connected + "T: 1 2 3\r\n\x1a";
    text[3] = 'F';
    bench.line.sendAt(500, text);
    soon([] {
        QDialog* dialog = shownDialog("recover");
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("failed battery recovery"));
        EXPECT_NE(labelText(*dialog, "Label1").find("   Insert the cable into the instrument."),
                  std::string::npos);
        EXPECT_TRUE(named(*dialog, "OK")->isVisible());
        EXPECT_TRUE(named(*dialog, "CancelButton")->isVisible());
        EXPECT_FALSE(named<QProgressBar>(*dialog, "ProgressBar1")->isVisible());
        click(*dialog, "OK");
    });
    bench.prompt.onMessage = [](const Message& message) {
        if (message.text.find("REMOVE THE CABLE") != std::string::npos) {
            QDialog* dialog = shownDialog("recover");
            EXPECT_FALSE(named(*dialog, "OK")->isVisible());
            EXPECT_TRUE(named(*dialog, "CancelButton")->isVisible());
            EXPECT_EQ(labelText(*dialog, "Label1"), " Cancel or Escape to quit\nCOM1  in use");
        }
    };
    const auto recovered = runRecover(nullptr, bench.context, bench.files, "/cache/temp.dat");
    ASSERT_TRUE(recovered);
    // Three readings of one minute.
    EXPECT_NE(recovered->text.find("03-15-24 14:08"), std::string::npos);
    EXPECT_TRUE(bench.files.contents.contains("/cache/temp.dat"));
}

TEST(ControlSessions, CancelButtonWhileItWaitsEndsIt) {
    SessionBench bench(7);
    soon([] { click(*shownDialog("recover"), "OK"); });
    bench.waiter.at(10000, [] { click(*shownDialog("recover"), "CancelButton"); });
    EXPECT_FALSE(runRecover(nullptr, bench.context, bench.files, "/cache/temp.dat"));
    EXPECT_FALSE(bench.line.isOpen());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(ControlSessions, AutomaticSelectionIsRefusedWithoutADialog) {
    SessionBench bench(11);
    EXPECT_FALSE(runRecover(nullptr, bench.context, bench.files, "/cache/temp.dat"));
    EXPECT_EQ(bench.prompt.shown.size(), 1U);
    EXPECT_TRUE(bench.line.calls.empty());
}

} // namespace
} // namespace tally
