// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinkBench.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::LinkBench;

struct SessionTest : ::testing::Test, LinkBench {
    void SetUp() override { journal.begin({}); }
};

TEST_F(SessionTest, OpensThePortOneCharacterARead) {
    instrument.gCommPort = 3;
    instrument.portSettings = "115200,N,8,1";
    session.openPort();
    std::vector<std::string> whats;
    for (const auto& call : line.calls)
        whats.push_back(call.what);
    EXPECT_EQ(whats, (std::vector<std::string>{"CommPort 3", "Settings 115200,N,8,1", "InputLen 1",
                                               "EOFEnable false", "PortOpen true"}));
}

TEST_F(SessionTest, GivesOneCharacterAndKeepsEveryOneInTheJournalBefore) {
    session.openPort();
    line.send("abc");
    EXPECT_EQ(session.Input(), "a");
    EXPECT_EQ(journal.receptions[0].parts[0], "abc");
    EXPECT_EQ(session.Input(), "b");
    EXPECT_EQ(session.Input(), "c");
    EXPECT_EQ(session.Input(), "");
}

TEST_F(SessionTest, DueComesBeforeCancelAndCancelBeforeData) {
    session.openPort();
    line.send("ab");
    waiter.cancelNow();
    EXPECT_EQ(session.until(0), Wake::due);
    EXPECT_EQ(session.until(1), Wake::cancelled);
    waiter.resetCancel();
    EXPECT_EQ(session.until(1), Wake::data);
    session.Input();
    // The second character was read already: the order is the same.
    EXPECT_EQ(session.until(0), Wake::due);
    EXPECT_EQ(session.until(1), Wake::data);
    waiter.cancelNow();
    EXPECT_EQ(session.until(1), Wake::cancelled);
}

TEST_F(SessionTest, WhatComesDuringAPauseIsKeptAndInTheJournal) {
    session.openPort();
    line.sendAt(100, "xy");
    line.sendAt(200, "z");
    EXPECT_EQ(session.pause(5000), Wake::due);
    EXPECT_EQ(waiter.now(), 5000);
    EXPECT_EQ(journal.receptions[0].parts[0], "xyz");
    EXPECT_EQ(session.Input(), "x");
    EXPECT_EQ(session.Input(), "y");
    EXPECT_EQ(session.Input(), "z");
}

TEST_F(SessionTest, ACancelEndsAPause) {
    session.openPort();
    waiter.cancelAt(300);
    EXPECT_EQ(session.pause(5000), Wake::cancelled);
    EXPECT_EQ(waiter.now(), 300);
}

TEST_F(SessionTest, ClosingDropsWhatWasReadButNotUsed) {
    session.openPort();
    line.send("abc");
    session.Input();
    session.closePort();
    EXPECT_EQ(session.Input(), "");
    EXPECT_FALSE(line.isOpen());
}

TEST_F(SessionTest, ALineThatWentAwayIsLostWhenEverythingWasUsed) {
    session.openPort();
    line.send("ab");
    line.lose();
    EXPECT_EQ(session.Input(), "a");
    EXPECT_FALSE(session.lost());
    EXPECT_EQ(session.Input(), "b");
    EXPECT_TRUE(session.lost());
    EXPECT_EQ(session.until(Waiter::never), Wake::data);
    EXPECT_EQ(session.pause(9000), Wake::due);
    EXPECT_EQ(waiter.now(), 0);
}

TEST_F(SessionTest, TheGuardClosesThePort) {
    {
        const PortGuard guard(session);
        session.openPort();
    }
    EXPECT_FALSE(line.isOpen());
}

TEST_F(SessionTest, AWaitThatNothingCanEndFailsTheTest) {
    session.openPort();
    EXPECT_THROW(session.until(Waiter::never), std::logic_error);
}

} // namespace
} // namespace tally
