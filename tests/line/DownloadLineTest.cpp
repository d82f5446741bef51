// SPDX-License-Identifier: GPL-3.0-or-later
#include "SessionDesk.h"
#include "link/DownloadSession.h"

#include <QTimer>
#include <gtest/gtest.h>
#include <random>

namespace tally {
namespace {

using testing::LiveInstrument;
using testing::memoryOf;
using testing::quickInstrument;
using testing::SessionDesk;

SessionResult<PendingDownload> download(SessionDesk& desk) {
    DownloadSession session(desk.session);
    const auto ready = session.prepare(desk.files, desk.folder.path().toStdString());
    if (!ready)
        return tl::make_unexpected(ready.error());
    return session.DownLoadProc();
}

TEST(DownloadOnTheLine, BringsTheMemoryUnchanged) {
    for (const int type : {1, 3, 7, 8, 10}) {
        const sim::InstrumentSetup setup = quickInstrument(type, 500);
        const LiveInstrument instrument(setup);
        SessionDesk desk(instrument.live.path(), type);
        if (type == 3)
            desk.prompt.answers = {Answer::Ok};
        const auto pending = download(desk);
        ASSERT_TRUE(pending) << type << desk.lastText();
        EXPECT_EQ(pending->text, memoryOf(setup)) << type;
        EXPECT_FALSE(desk.line.isOpen());
        const auto entries = desk.journal.list();
        ASSERT_EQ(entries.size(), 1U);
        EXPECT_EQ(entries[0].state, JournalState::accepted);
        EXPECT_EQ(entries[0].bytes, memoryOf(setup).size());
        EXPECT_EQ(entries[0].serial, "1234");
    }
}

TEST(DownloadOnTheLine, BringsTheLargestMemory) {
    const sim::InstrumentSetup setup = quickInstrument(8, 42966);
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 8);
    const auto pending = download(desk);
    ASSERT_TRUE(pending) << desk.lastText();
    EXPECT_TRUE(pending->text == memoryOf(setup)) << pending->text.size();
}

TEST(DownloadOnTheLine, AutomaticSelectionFindsTheOtherRate) {
    const sim::InstrumentSetup setup = quickInstrument(8, 500);
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 11);
    ASSERT_EQ(desk.state.portSettings, "9600,N,8,1");
    const std::int64_t start = desk.waiter.now();
    const auto pending = download(desk);
    ASSERT_TRUE(pending) << desk.lastText();
    EXPECT_EQ(pending->text, memoryOf(setup));
    EXPECT_EQ(desk.state.instAutoCurrent, 8);
    // 2.5 s of silence and 5 s of reset.
    EXPECT_GE(desk.waiter.now() - start, 7500);
    EXPECT_LE(desk.waiter.now() - start, 9500);
}

TEST(DownloadOnTheLine, LowBatteryIsToldAndTheInitialMended) {
    sim::InstrumentSetup setup = quickInstrument(7, 20);
    const std::string expected = memoryOf(setup);
    setup.faults.lowBattery = true;
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    const auto pending = download(desk);
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, expected);
    EXPECT_EQ(desk.lastText(), "    LOW INSTRUMENT BATTERY    ");
}

TEST(DownloadOnTheLine, ErrorsAreAskedAbout) {
    sim::InstrumentSetup setup = quickInstrument(7, 100);
    setup.faults.shortLine = 2;
    setup.faults.damagedLine = 3;
    setup.faults.over = 1;
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    desk.prompt.answers = {Answer::No};
    EXPECT_FALSE(download(desk));
    for (const char* line : {"1 line(s) with an incorrect number of readings", "1 reading(s) over 999",
                             "1 bad character(s)", "(ASCII value of first bad character = 65)"})
        EXPECT_NE(desk.lastText().find(line), std::string::npos) << line;
    EXPECT_EQ(desk.journal.list().at(0).state, JournalState::refused);
}

TEST(DownloadOnTheLine, AStalledTextEndsAfterSomeTwoSecondsOfSilence) {
    sim::InstrumentSetup setup = quickInstrument(7, 500);
    setup.faults.cable = 600;
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    desk.prompt.answers = {Answer::Yes};
    const std::int64_t start = desk.waiter.now();
    const auto pending = download(desk);
    ASSERT_TRUE(pending) << desk.lastText();
    EXPECT_EQ(pending->text, memoryOf(quickInstrument(7, 500)).substr(0, 600));
    EXPECT_GE(desk.waiter.now() - start, 2250);
    EXPECT_LE(desk.waiter.now() - start, 4000);
}

TEST(DownloadOnTheLine, ACancelWhileWaitingClosesThePort) {
    sim::InstrumentSetup setup = quickInstrument(7, 20);
    setup.faults.silent = true;
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    QTimer::singleShot(100, &desk.waiter, &QtWaiter::cancel);
    EXPECT_FALSE(download(desk));
    EXPECT_FALSE(desk.line.isOpen());
    EXPECT_TRUE(desk.prompt.shown.empty());
}

TEST(DownloadOnTheLine, ADeviceThatNeverStopsEndsAtTheLimit) {
    sim::InstrumentSetup setup = quickInstrument(10, 2000);
    setup.faults.endless = true;
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 10);
    desk.prompt.answers = {Answer::Yes};
    const auto pending = download(desk);
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text.size(), 48000U);
}

TEST(DownloadOnTheLine, BinaryNoiseEndsWithWordsOrAQuestion) {
    sim::InstrumentSetup setup = quickInstrument(7, 20);
    setup.faults.binary = 2000;
    const LiveInstrument instrument(setup);
    SessionDesk desk(instrument.live.path(), 7);
    desk.prompt.answers = {Answer::No};
    EXPECT_FALSE(download(desk));
    EXPECT_FALSE(desk.lastText().empty());
    EXPECT_FALSE(desk.line.isOpen());
}

TEST(DownloadOnTheLine, ABadPortIsToldBeforeAnything) {
    SessionDesk desk("/dev/no-such-device", 7);
    EXPECT_FALSE(download(desk));
    EXPECT_EQ(desk.lastText(),
              "Communication port not valid.\r\nTry selecting a different COM port\r\n"
              "COM1 (/dev/no-such-device) is not there. Check that the adapter is plugged in.");
    EXPECT_TRUE(desk.journal.list().empty());
}

// The adapter is pulled at fifty places; every character that came is in the journal, marked as interrupted,
// also for the next start of the program.
TEST(DownloadOnTheLine, ThePulledAdapterLeavesEveryCharacterInTheJournal) {
    std::mt19937 random(20240315);
    const std::string whole = memoryOf(quickInstrument(7, 1000));
    std::uniform_int_distribution<std::int64_t> place(1, static_cast<std::int64_t>(whole.size()) - 1);
    for (int i = 0; i < 50; ++i) {
        sim::InstrumentSetup setup = quickInstrument(7, 1000);
        setup.speed = 1000;
        setup.plugDelay = 20;
        setup.faults.gone = place(random);
        const LiveInstrument instrument(setup);
        SessionDesk desk(instrument.live.path(), 7);
        EXPECT_FALSE(download(desk));
        EXPECT_FALSE(desk.line.isOpen());
        EXPECT_EQ(desk.lastText(), "The serial line COM1 (" + instrument.live.path() +
                                       ") has gone. Was the adapter or its cable pulled out?");
        const JournalFolder next(desk.journalFolder(), desk.files);
        const auto entries = next.list();
        ASSERT_EQ(entries.size(), 1U);
        EXPECT_EQ(entries[0].state, JournalState::interrupted);
        EXPECT_EQ(next.text(entries[0].id), whole.substr(0, static_cast<std::size_t>(setup.faults.gone)));
    }
}

} // namespace
} // namespace tally
