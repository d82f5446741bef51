// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Rescue.h"

#include "Bench.h"
#include "core/Fault.h"
#include "support/QueuedPrompt.h"

namespace tally {
namespace {

using testing::header;

std::string memory(char mode, int readings, const std::string& time = "03-15-24 14:05",
                   const std::string& code = "PQX") {
    std::string text = header(code, mode, "0417", time) + "\r\nT:";
    for (int i = 0; i < readings; ++i)
        text += i % 10 == 9 ? " 123\r\n" : " 123";
    return text + "\x1a";
}

struct ControlRescueTest : ::testing::Test {
    testing::MemoryJournal journal;
    testing::QueuedPrompt prompt;

    void receive(const std::string& text,
                 JournalHeader header = {.instrumentType = 7, .command = "recover"}) {
        journal.begin(header);
        journal.append(text);
        journal.end(JournalState::received);
    }
    SessionResult<PendingDownload> run() { return rescue(journal, journal.list().front(), prompt); }
};

TEST_F(ControlRescueTest, ARecoverReceptionGetsTheTimeAtWhichItStopped) {
    receive("p" + memory('F', 60).substr(1));
    const auto recovered = run();
    ASSERT_TRUE(recovered);
    // 60 readings of a minute after 14:05.
    EXPECT_EQ(recovered->text, memory('F', 60, "03-15-24 15:05"));
    EXPECT_EQ(journal.receptions[0].accepted, recovered->text);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(ControlRescueTest, AFullContinuousMemoryIsRefusedAsTheCommandRefusesIt) {
    receive(memory('C', 10710));
    const auto recovered = run();
    ASSERT_FALSE(recovered);
    EXPECT_EQ(recovered.error().kind, EndKind::notRecoverable);
    EXPECT_EQ(prompt.texts(),
              std::vector<std::string>{
                  "    CONTINUOUS DATA; NOT RECOVERABLE     \r  CANNOT DETERMINE STOPPED TIME \r\r"});
    EXPECT_EQ(journal.receptions[0].state, JournalState::received);
}

TEST_F(ControlRescueTest, TheMemoryIsThatOfTheReception) {
    receive(memory('C', 294), {.instrumentType = 9, .maxSamples = 294, .command = "recover"});
    EXPECT_FALSE(run());
    receive(memory('C', 294), {.instrumentType = 7, .command = "recover"});
    EXPECT_TRUE(run());
}

TEST_F(ControlRescueTest, WhatIsNoInstrumentToRecoverIsRefused) {
    receive(header("PQX", 'F') + "\r\nX: 1\x1a");
    EXPECT_FALSE(run());
    receive("zzz\x1a");
    EXPECT_FALSE(run());
    receive(memory('F', 10, "03-15-24 14:05", "HVA"), {.instrumentType = 3, .command = "recover"});
    EXPECT_FALSE(run());
    EXPECT_EQ(prompt.texts(), (std::vector<std::string>{
                                  "     NOT A VALID INSTRUMENT    \r         REMOVE THE CABLE NOW       \r\r",
                                  "     NOT A VALID INSTRUMENT    \r         REMOVE THE CABLE NOW       \r\r",
                                  "Not Voltmeter"}));
}

TEST_F(ControlRescueTest, ARecoverThatWasCutShortHasNoStopTime) {
    receive(memory('F', 60).substr(0, 200));
    EXPECT_FALSE(run());
    EXPECT_EQ(prompt.shown.size(), 1U);
}

TEST_F(ControlRescueTest, ADownloadIsJudgedAsADownload) {
    receive(memory('F', 60), {.instrumentType = 7});
    const auto pending = run();
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, memory('F', 60));
}

TEST_F(ControlRescueTest, AnAcceptedTextIsTakenAsItIs) {
    receive(memory('F', 60));
    ASSERT_TRUE(run());
    EXPECT_EQ(run()->text, memory('F', 60, "03-15-24 15:05"));
}

} // namespace
} // namespace tally
