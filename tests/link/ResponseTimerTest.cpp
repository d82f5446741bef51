// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ResponseTimer.h"

#include "LinkBench.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

struct ResponseTimerTest : ::testing::Test, testing::LinkBench {
    ResponseTimer timer{session};
    void SetUp() override {
        journal.begin({});
        automatic(7);
    }
};

TEST_F(ResponseTimerTest, StartAndStopAreLoggedWithTheStateBefore) {
    timer.StartTimer();
    EXPECT_EQ(timer.deadline(), 2500);
    timer.StartTimer();
    timer.StopTimer();
    timer.StopTimer();
    EXPECT_EQ(timer.deadline(), Waiter::never);
    EXPECT_EQ(panel.log, "Start of StartTimer: timer1.enabled=False\r\n"
                         "Start of StartTimer: timer1.enabled=True\r\n"
                         "Start of StopTimer: timer1.enabled=True\r\n"
                         "Start of StopTimer: timer1.enabled=False\r\n");
    EXPECT_EQ(panel.statuses.front(), "Treating unit as PQX-K4.  Waiting for response...");
}

TEST_F(ResponseTimerTest, TheFlipGoesToTheOtherSettingsAndBack) {
    switchAutoType(instrument);
    EXPECT_EQ(instrument.instAutoCurrent, 8);
    EXPECT_EQ(instrument.portSettings, "115200,N,8,1");
    EXPECT_EQ(instrument.maxSamples, 42966);
    switchAutoType(instrument);
    EXPECT_EQ(instrument.instAutoCurrent, 7);
    EXPECT_EQ(instrument.portSettings, "9600,N,8,1");
    EXPECT_EQ(instrument.maxSamples, 10710);
}

TEST_F(ResponseTimerTest, TheFlipReopensResetsAndRunsAnew) {
    session.openPort();
    line.calls.clear();
    EXPECT_TRUE(timer.FlipPortSettings());
    EXPECT_EQ(waiter.now(), 5000);
    EXPECT_EQ(timer.deadline(), 7500);
    EXPECT_TRUE(timer.triedBoth());
    std::vector<std::string> whats;
    for (const auto& call : line.calls)
        whats.push_back(call.what);
    EXPECT_EQ(whats, (std::vector<std::string>{"PortOpen false", "CommPort 1", "Settings 115200,N,8,1",
                                               "InputLen 1", "EOFEnable false", "PortOpen true",
                                               "DTREnable false", "DTREnable true"}));
    EXPECT_EQ(line.firstTime("DTREnable false"), 0);
    EXPECT_EQ(line.firstTime("DTREnable true"), 5000);
    EXPECT_EQ(panel.statuses,
              (std::vector<std::string>{"No response. Changing settings. (Takes about 5 seconds)...",
                                        "Now treating unit as PQX-K4-W.  Waiting for response..."}));
}

TEST_F(ResponseTimerTest, TheReasonStandsInTheStatusText) {
    session.openPort();
    timer.FlipPortSettings("Bad header.");
    EXPECT_EQ(panel.statuses.front(), "Bad header. Changing settings. (Takes about 5 seconds)...");
}

TEST_F(ResponseTimerTest, ACancelDuringTheResetRaisesDtrAgain) {
    session.openPort();
    waiter.cancelAt(1200);
    const auto flipped = timer.FlipPortSettings();
    ASSERT_FALSE(flipped);
    EXPECT_EQ(flipped.error().kind, EndKind::cancelled);
    EXPECT_EQ(waiter.now(), 1200);
    EXPECT_EQ(line.firstTime("DTREnable true"), 1200);
    EXPECT_FALSE(timer.running());
}

TEST_F(ResponseTimerTest, TheJournalKnowsWhereTheOtherSettingsBegin) {
    session.openPort();
    line.send("old");
    session.Input();
    timer.FlipPortSettings();
    line.send("new");
    session.Input();
    EXPECT_EQ(journal.receptions[0].parts, (std::vector<std::string>{"old", "new"}));
}

} // namespace
} // namespace tally
