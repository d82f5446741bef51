// SPDX-License-Identifier: GPL-3.0-or-later
#include "SessionDesk.h"
#include "control/Initialize.h"
#include "control/Recover.h"
#include "link/StatusCheck.h"

#include <QTimer>
#include <atomic>
#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::LiveInstrument;
using testing::memoryOf;
using testing::quickInstrument;
using testing::SessionDesk;

// How many instruments were set and read back.
int initialize(SessionDesk& desk, char mode) {
    InitializeSession(desk.services, desk.panel).Initialize(mode);
    int count = 0;
    for (const std::string& text : desk.prompt.texts())
        count += text.starts_with("Initialization complete.") ? 1 : 0;
    return count;
}

TEST(OtherSessionsLine, ShowsTheFieldsOfTheHeader) {
    sim::InstrumentSetup setup = quickInstrument(7, 100);
    setup.memory = sim::filledMemory('i', 10710, 99, setup.clock);
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    desk.prompt.answers = {Answer::Ok, Answer::No};
    const auto fields = StatusCheckSession(desk.session).StatusCheck();
    ASSERT_TRUE(fields) << desk.lastText();
    EXPECT_EQ(fields->type, "KWT");
    EXPECT_EQ(fields->serial, "1234");
    EXPECT_EQ(fields->state, "Running");
    EXPECT_EQ(fields->interval, 1);
    EXPECT_EQ(fields->timeOn, "12:00  Mar 15, 24");
    // 3E8 is 1,000: 1,000 x 0.003656 + 0.15 volts.
    EXPECT_NEAR(fields->vbatt.value_or(0), 3.806, 1e-9);
    EXPECT_FALSE(desk.line.isOpen());
}

TEST(OtherSessionsLine, EveryModeIsSetAndReadBack) {
    for (char mode = 'a'; mode <= 'l'; ++mode) {
        LiveInstrument instrument(quickInstrument(7, 50));
        SessionDesk desk(instrument.live.path(), 7);
        desk.prompt.answers = {Answer::Ok, Answer::No};
        EXPECT_EQ(initialize(desk, mode), 1) << mode << desk.lastText();
        EXPECT_FALSE(desk.line.isOpen());
        instrument.live.stop();
        EXPECT_EQ(instrument.instrument.erasures(), 1);
        const char reduced = mode > 'f' ? static_cast<char>(mode - 6) : mode;
        EXPECT_EQ(instrument.instrument.initString().substr(14),
                  std::string(" ") + reduced + (mode > 'f' ? "1\r" : "0\r"));
    }
}

TEST(OtherSessionsLine, TheBlankModeIsSetToo) {
    LiveInstrument instrument(quickInstrument(1, 50));
    SessionDesk desk(instrument.live.path(), 1);
    desk.prompt.answers = {Answer::Ok, Answer::No};
    EXPECT_EQ(initialize(desk, 'a'), 1) << desk.lastText();
    instrument.live.stop();
    EXPECT_EQ(instrument.instrument.initString().substr(14), "  0\r");
}

TEST(OtherSessionsLine, TwoInstrumentsOneAfterTheOther) {
    LiveInstrument instrument(quickInstrument(8, 50));
    SessionDesk desk(instrument.live.path(), 8);
    desk.prompt.answers = {Answer::Ok, Answer::Yes, Answer::Ok, Answer::No};
    EXPECT_EQ(initialize(desk, 'e'), 2) << desk.lastText();
    instrument.live.stop();
    EXPECT_EQ(instrument.instrument.erasures(), 2);
}

// An instrument that sends only its header, so that no "T" of its memory stands for the answer, and takes its
// time with that. It would take the settings at any moment after the command.
sim::InstrumentSetup slowToAnswer(std::int64_t answerTime) {
    sim::InstrumentSetup setup = quickInstrument(7, 50);
    setup.faults.headerOnly = true;
    setup.answerTime = answerTime;
    return setup;
}

TEST(OtherSessionsLine, ACancelBeforeTheAnswerErasesNothing) {
    LiveInstrument instrument(slowToAnswer(60'000));
    SessionDesk desk(instrument.live.path(), 7);
    std::atomic<bool> commanded = false;
    instrument.instrument.narrate = [&](const std::string& text) {
        commanded = commanded || text == "The command to initialise has come.";
    };
    // Cancelled a second after the command: the settings would have gone half a second after an answer.
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &desk.waiter, [&] {
        if (!commanded)
            return;
        poll.stop();
        QTimer::singleShot(1000, &desk.waiter, &QtWaiter::cancel);
    });
    poll.start(5);
    // After the cancel the prompt comes again, and Cancel there ends it.
    desk.prompt.answers = {Answer::Ok, Answer::Cancel};
    EXPECT_EQ(initialize(desk, 'e'), 0);
    EXPECT_FALSE(desk.line.isOpen());
    instrument.live.stop();
    EXPECT_TRUE(commanded);
    EXPECT_EQ(instrument.instrument.receivedCount(), 1); // the command and nothing else
    EXPECT_EQ(instrument.instrument.erasures(), 0);
}

TEST(OtherSessionsLine, TheSameInstrumentIsErasedWhenItAnswers) {
    LiveInstrument instrument(slowToAnswer(300));
    SessionDesk desk(instrument.live.path(), 7);
    desk.prompt.answers = {Answer::Ok, Answer::No};
    EXPECT_EQ(initialize(desk, 'e'), 1) << desk.lastText();
    instrument.live.stop();
    EXPECT_EQ(instrument.instrument.receivedCount(), 1 + 18);
    EXPECT_EQ(instrument.instrument.erasures(), 1);
}

TEST(OtherSessionsLine, EveryKindOfInstrumentIsSet) {
    struct Kind {
        sim::BeforeAnswer beforeAnswer;
        bool strict;
        bool headerOnly;
    };
    using Before = sim::BeforeAnswer;
    for (const Kind& kind : {Kind{Before::nothing, true, false}, Kind{Before::nothing, true, true},
                             Kind{Before::line, true, false}, Kind{Before::memory, false, false}}) {
        sim::InstrumentSetup setup = quickInstrument(7, 200);
        setup.beforeAnswer = kind.beforeAnswer;
        setup.strict = kind.strict;
        setup.faults.headerOnly = kind.headerOnly;
        LiveInstrument instrument(setup);
        SessionDesk desk(instrument.live.path(), 7);
        desk.prompt.answers = {Answer::Ok, Answer::No};
        EXPECT_EQ(initialize(desk, 'l'), 1) << desk.lastText();
        instrument.live.stop();
        EXPECT_EQ(instrument.instrument.initString().substr(14), " f1\r")
            << int(kind.beforeAnswer) << kind.strict << kind.headerOnly;
    }
}

TEST(OtherSessionsLine, ThePulledAdapterIsTold) {
    sim::InstrumentSetup setup = quickInstrument(7, 50);
    setup.faults.gone = 30;
    LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    desk.prompt.answers = {Answer::Ok};
    EXPECT_EQ(initialize(desk, 'e'), 0);
    EXPECT_FALSE(desk.prompt.shown.empty());
    EXPECT_FALSE(desk.line.isOpen());
}

sim::InstrumentSetup batteryFailed(char mode, int count) {
    sim::InstrumentSetup setup = quickInstrument(7, 0);
    setup.memory = sim::filledMemory(mode, 10710, count, setup.clock);
    setup.batteryFailed = true;
    setup.layout = sim::Layout::brief;
    return setup;
}

SessionResult<PendingDownload> recover(SessionDesk& desk) {
    RecoverSession session(desk.session);
    if (const auto ready = session.prepare(); !ready)
        return tl::make_unexpected(ready.error());
    return session.RecoverProc(desk.files, desk.folder.path().toStdString() + "/temp.dat");
}

TEST(OtherSessionsLine, WritesTheStopTimeIntoTheHeader) {
    // 60 readings of a minute each, begun at 11:00: stopped at 12:00.
    const sim::InstrumentSetup setup = batteryFailed('f', 60);
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    const auto recovered = recover(desk);
    ASSERT_TRUE(recovered) << desk.lastText();
    std::string expected = memoryOf(setup);
    ASSERT_EQ(expected.substr(30, 14), "03-15-24 11:00");
    expected.replace(30, 14, "03-15-24 12:00");
    EXPECT_EQ(recovered->text, expected);
}

TEST(OtherSessionsLine, AFullStopMemoryIsRecoveredAndAFullLoopIsNot) {
    const LiveInstrument stopped(batteryFailed('f', 10710));
    SessionDesk good(stopped.live.path(), 7);
    EXPECT_TRUE(recover(good)) << good.lastText();

    const LiveInstrument looping(batteryFailed('c', 10710));
    SessionDesk bad(looping.live.path(), 7);
    EXPECT_FALSE(recover(bad));
    EXPECT_NE(bad.lastText().find("CONTINUOUS DATA; NOT RECOVERABLE"), std::string::npos);
}

TEST(OtherSessionsLine, AnInstrumentWithAUsableClockIsNotTaken) {
    const LiveInstrument instrument(quickInstrument(7, 60));
    SessionDesk desk(instrument.live.path(), 7);
    EXPECT_FALSE(recover(desk));
    EXPECT_NE(desk.lastText().find("NOT A VALID INSTRUMENT"), std::string::npos);
    EXPECT_FALSE(desk.line.isOpen());
}

} // namespace
} // namespace tally
