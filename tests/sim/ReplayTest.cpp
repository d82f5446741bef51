// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Replay.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using namespace sim;

const char* const twoOpenings = "1000 open\n"
                                "1001 rate 9600\n"
                                "1500 sent \"ab\"\n"
                                "1600 sent \"cd\"\n"
                                "2000 close\n"
                                "3000 open\n"
                                "3001 rate 115200\n"
                                "3100 sent \"KWT\"\n"
                                "4000 close\n";

TEST(Replay, SendsEachOpeningWithItsPauses) {
    Replay replay(parseRecord(twoOpenings));
    replay.opened(50);
    replay.rate(51, 9600);
    EXPECT_EQ(replay.sent(549), "");
    EXPECT_EQ(replay.nextAt(), 550);
    EXPECT_EQ(replay.sent(550), "ab");
    EXPECT_EQ(replay.nextAt(), 650);
    EXPECT_EQ(replay.sent(700), "cd");
    EXPECT_EQ(replay.nextAt(), never);
    replay.closed(800);
    EXPECT_FALSE(replay.finished());
    replay.opened(900);
    replay.rate(900, 115200);
    EXPECT_EQ(replay.sent(1000), "KWT");
    EXPECT_FALSE(replay.finished());
    replay.closed(1100);
    EXPECT_TRUE(replay.finished());
}

TEST(Replay, SaysNothingAtARateThatTheRecordDoesNotHave) {
    Replay replay(parseRecord(twoOpenings));
    replay.opened(0);
    replay.rate(1, 300);
    EXPECT_EQ(replay.sent(100000), "");
}

TEST(Replay, PassesOverOpeningsAtAnotherRate) {
    Replay replay(parseRecord(twoOpenings));
    replay.opened(0);
    replay.rate(1, 115200);
    EXPECT_EQ(replay.sent(5000), "KWT");
    replay.closed(6000);
    EXPECT_TRUE(replay.finished());
}

TEST(Replay, AnOpeningInWhichNothingWasSentIsNotWaitedFor) {
    Replay replay(
        parseRecord("0 open\n1 rate 9600\n2 close\n10 open\n11 rate 9600\n12 sent \"x\"\n13 close\n"));
    replay.opened(100);
    replay.rate(101, 9600);
    EXPECT_EQ(replay.sent(200), "x");
}

TEST(Replay, WaitsForAsManyCharactersAsWereReceived) {
    Replay replay(
        parseRecord("0 open\n0 rate 9600\n100 sent \"P\"\n300 received \"\\x09\\x09\"\n350 sent \"T\"\n"));
    replay.opened(0);
    replay.rate(0, 9600);
    EXPECT_EQ(replay.sent(5000), "P");
    replay.received(5000, "x");
    EXPECT_EQ(replay.nextAt(), never);
    replay.received(6000, "y");
    EXPECT_EQ(replay.sent(6000), "");
    EXPECT_EQ(replay.nextAt(), 6050);
    EXPECT_EQ(replay.sent(6050), "T");
}

TEST(Replay, ClosingEndsAnOpeningInTheMiddle) {
    Replay replay(parseRecord(twoOpenings));
    replay.opened(0);
    replay.rate(0, 9600);
    EXPECT_EQ(replay.sent(500), "ab");
    replay.closed(550);
    EXPECT_EQ(replay.sent(9000), "");
    EXPECT_EQ(replay.nextAt(), never);
}

TEST(Replay, SpeedShortensThePausesAndNoneLeavesThemOut) {
    Replay fast(parseRecord(twoOpenings), 10);
    fast.opened(0);
    fast.rate(0, 9600);
    EXPECT_EQ(fast.sent(59), "ab");
    EXPECT_EQ(fast.sent(60), "cd");
    Replay atOnce(parseRecord(twoOpenings), 0);
    atOnce.opened(0);
    atOnce.rate(0, 9600);
    EXPECT_EQ(atOnce.sent(20), "abcd");
}

TEST(Replay, ARecordWithoutOpeningsIsPlayedAtOnce) {
    Replay replay(parseRecord("5 sent \"x\"\n"));
    replay.opened(0);
    replay.rate(0, 9600);
    EXPECT_EQ(replay.sent(100), "x");
}

TEST(Replay, AnEmptyRecordIsFinished) {
    EXPECT_TRUE(Replay({}).finished());
    EXPECT_EQ(Replay({}).ownRate(), 9600);
}

} // namespace
} // namespace tally
