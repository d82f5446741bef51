// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/forms/Dwnloaditem.h"
#include "link/forms/Status.h"

#include "link/forms/LinkSupport.h"

#include <QMainWindow>
#include <QProgressBar>

namespace tally {
namespace {

using namespace testing;

std::string recording() {
    std::string text = instrumentHeader("PQX", 'c') + "   Vbatt 3E8\r\nT:";
    for (int i = 0; i < 20; ++i)
        text += i % 10 == 9 ? " 123\r\n" : " 123";
    return text + "\x1a";
}

SessionResult<PendingDownload> download(SessionBench& bench, std::function<void(QDialog&)> answer,
                                        QWidget* parent = nullptr) {
    soon([answer] {
        if (QDialog* dialog = shownDialog("Dwnloaditem"))
            answer(*dialog);
    });
    return runDownload(parent, bench.context, bench.files, "/nowhere");
}

void pressOk(QDialog& dialog) {
    click(dialog, "OK");
}

TEST(LinkSessions, StartsWithThePromptAndAnEmptyLog) {
    SessionBench bench(7);
    download(bench, [](QDialog& dialog) {
        EXPECT_TRUE(dialog.isModal());
        EXPECT_NE(labelText(dialog, "PromptLabel").find("   Insert the cable into the instrument."),
                  std::string::npos);
        EXPECT_EQ(labelText(dialog, "Label1"), "");
        EXPECT_EQ(labelText(dialog, "Label2"), "");
        EXPECT_EQ(labelText(dialog, "Label3"), "Debugging log:\n");
        EXPECT_TRUE(named(dialog, "OK")->isVisible());
        EXPECT_TRUE(named(dialog, "CancelButton")->isVisible());
        EXPECT_EQ(named<QProgressBar>(dialog, "ProgressBar1")->maximum(), 20000);
        EXPECT_FALSE(named<QProgressBar>(dialog, "ProgressBar1")->isVisible());
        click(dialog, "CancelButton");
    });
    EXPECT_EQ(bench.line.count("PortOpen true"), 1); // the try alone
}

TEST(LinkSessions, OkRunsTheWholeDownload) {
    SessionBench bench(7);
    bench.line.sendAt(500, recording());
    std::string log;
    std::string report;
    bench.prompt.onMessage = [&](const Message& message) {
        if (message.text != " PROCEED")
            return;
        QDialog* dialog = shownDialog("Dwnloaditem");
        log = labelText(*dialog, "Label3");
        report = labelText(*dialog, "PromptLabel");
        EXPECT_FALSE(named(*dialog, "OK")->isVisible());
    };
    const auto accepted = download(bench, pressOk);
    ASSERT_TRUE(accepted);
    EXPECT_EQ(accepted->text, recording());
    EXPECT_NE(log.find("Total No. of characters received = " + std::to_string(recording().size())),
              std::string::npos);
    EXPECT_NE(report.find("REMEMBER TO SAVE THIS DOWNLOAD TO A FILE"), std::string::npos);
    EXPECT_EQ(bench.mainStatuses.front(), "COM1  in use\r\n Cancel or Escape to quit");
    EXPECT_EQ(bench.mainStatuses.back(), "");
}

TEST(LinkSessions, CancelEscapeAndClosingBeforeOkEndTheCommand) {
    for (int way = 0; way < 3; ++way) {
        SessionBench bench(7);
        const auto accepted = download(bench, [way](QDialog& dialog) {
            if (way == 0)
                click(dialog, "CancelButton");
            else if (way == 1)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                dialog.close();
        });
        EXPECT_FALSE(accepted);
        EXPECT_FALSE(bench.line.isOpen());
        EXPECT_TRUE(bench.journal.receptions.empty());
    }
}

TEST(LinkSessions, WhileItRunsCancelEscapeAndClosingOnlyRequestACancel) {
    for (int way = 0; way < 3; ++way) {
        SessionBench bench(7);
        bench.line.sendAt(500, "PQX");
        bool stillOpen = false;
        bench.waiter.at(1000, [&] {
            QDialog* dialog = shownDialog("Dwnloaditem");
            if (way == 0)
                click(*dialog, "CancelButton");
            else if (way == 1)
                QTest::keyClick(dialog, Qt::Key_Escape);
            else
                dialog->close();
            stillOpen = dialog->isVisible() && bench.waiter.cancelRequested();
        });
        EXPECT_FALSE(download(bench, pressOk)) << way;
        EXPECT_TRUE(stillOpen) << way;
        EXPECT_FALSE(bench.line.isOpen());
        EXPECT_EQ(bench.journal.receptions.at(0).parts.at(0), "PQX");
    }
}

TEST(LinkSessions, AFaultClosesTheDialogAndGoesToTheCaller) {
    SessionBench bench(7);
    // More bad characters than a 16-bit counter holds.
    bench.line.sendAt(500, instrumentHeader("PQX", 'a') + "\r\nT: " + std::string(32'768, 'x') + "\r\n\x1a");
    EXPECT_THROW(download(bench, pressOk), Fault);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(bench.line.isOpen());
}

TEST(LinkSessions, TheMainWindowHasTheHourglassWhileCharactersCome) {
    SessionBench bench(7);
    QMainWindow window;
    bench.line.sendPaced(500, recording(), 1);
    Qt::CursorShape shape = Qt::ArrowCursor;
    bench.waiter.at(550, [&] { shape = window.cursor().shape(); });
    EXPECT_TRUE(download(bench, pressOk, &window));
    EXPECT_EQ(shape, Qt::WaitCursor);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST(LinkSessions, ShowsTheResultUntilNoOther) {
    SessionBench bench(7);
    bench.line.sendAt(500, instrumentHeader("PQX", 'c') + "   Vbatt 3E8\r");
    bench.prompt.answers = {Answer::Ok, Answer::No};
    std::string result;
    bench.prompt.onMessage = [&](const Message& message) {
        if (message.buttons != Buttons::YesNo)
            return;
        QDialog* dialog = shownDialog("status");
        result = labelText(*dialog, "Label2");
        EXPECT_EQ(named(*dialog, "Command2")->text(), QStringLiteral("Cancel"));
    };
    const auto fields = runStatusCheck(nullptr, bench.context);
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields->serial, "0417");
    EXPECT_NE(result.find(" Type: PQX    Serial Number 0417\n"), std::string::npos);
    EXPECT_NE(result.find("\nVbatt = 3.806 volts"), std::string::npos);
}

TEST(LinkSessions, CancelEndsTheCheckWithCallPoint114) {
    SessionBench bench(7);
    bench.prompt.answers = {Answer::Ok};
    bench.waiter.at(1000, [] { click(*shownDialog("status"), "Command2"); });
    EXPECT_FALSE(runStatusCheck(nullptr, bench.context));
    EXPECT_EQ(bench.callPoint, 114);
    EXPECT_FALSE(bench.line.isOpen());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace tally
