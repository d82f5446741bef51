// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Script.h"

#include "Bench.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tally {
namespace {

using namespace sim;
using testing::setupWith;

ScriptedInstrument scripted(const char* script) {
    InstrumentSetup setup = setupWith(7, {1});
    setup.speed = 0;
    return {setup, parseScript(script)};
}

void open(ScriptedInstrument& peer, std::int64_t time) {
    peer.opened(time);
    peer.rate(time, 9600);
}

TEST(Script, PlugsAfterAWait) {
    auto peer = scripted("until-open\nwait 2.5\nplug\n");
    open(peer, 1000);
    EXPECT_EQ(peer.nextAt(), 3500);
    EXPECT_EQ(peer.sent(3499), "");
    EXPECT_EQ(peer.sent(3500).substr(0, 3), "KWT");
    EXPECT_FALSE(peer.finished());
    peer.closed(4000);
    EXPECT_TRUE(peer.finished());
}

TEST(Script, DoesNothingByItself) {
    auto peer = scripted("until-open\nwait 100\n");
    open(peer, 0);
    EXPECT_EQ(peer.sent(99'999), "");
}

TEST(Script, SendsTextsOfItsOwn) {
    auto peer = scripted("until-open\nsend \"K\\x1A\\r\"\n");
    open(peer, 0);
    EXPECT_EQ(peer.sent(0), "K\x1a\r");
}

TEST(Script, FaultsHoldForTheTextsToCome) {
    auto peer = scripted("until-open\nfault low-battery\nplug\nuntil-sent\nno-faults\nwait 1\nplug\n");
    open(peer, 0);
    EXPECT_EQ(peer.sent(0).substr(0, 1), "k");
    EXPECT_EQ(peer.sent(1000).substr(0, 1), "K");
}

TEST(Script, UnplugFallsSilentAndGoneTakesThePort) {
    InstrumentSetup setup = setupWith(7, {1});
    ScriptedInstrument peer(setup, parseScript("until-open\nplug\nwait 0.02\nunplug\nwait 1\ngone"));
    open(peer, 0);
    EXPECT_EQ(peer.sent(20).size(), 19U);
    EXPECT_EQ(peer.sent(500), "");
    EXPECT_FALSE(peer.gone());
    peer.sent(1020);
    EXPECT_TRUE(peer.gone());
}

TEST(Script, WaitsForCharactersFromTheComputer) {
    auto peer = scripted("until-open\nuntil-received 2\nsend \"ok\"\n");
    open(peer, 0);
    peer.received(10, "a");
    EXPECT_EQ(peer.sent(10), "");
    peer.received(20, "b");
    EXPECT_EQ(peer.sent(20), "ok");
}

TEST(Script, RepeatsFromItsBegin) {
    auto peer = scripted("until-open\nplug\nuntil-closed\nrepeat\n");
    for (const std::int64_t time : {0, 1000, 2000}) {
        open(peer, time);
        EXPECT_EQ(peer.sent(time + 10).substr(0, 3), "KWT");
        peer.closed(time + 20);
        peer.sent(time + 20);
        EXPECT_FALSE(peer.finished());
    }
}

TEST(Script, RemarksAndBlankLinesSayNothing) {
    EXPECT_EQ(parseScript("# remark\n\n  plug  \r\n").size(), 1U);
}

TEST(Script, RefusesWithTheNumberOfTheLine) {
    for (const char* line : {"plugg", "wait", "wait x", "wait -1", "wait 1e40", "wait nan", "plug now",
                             "fault nonsense", "send abc", "until-received", "repeat"}) {
        try {
            parseScript(std::string("unplug\n") + line);
            ADD_FAILURE() << line;
        } catch (const std::invalid_argument& problem) {
            EXPECT_EQ(std::string(problem.what()).substr(0, 20), "line 2 of the script") << line;
        }
    }
}

} // namespace
} // namespace tally
