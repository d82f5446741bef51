// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/InstrumentWait.h"

#include "LinkBench.h"
#include "link/DownloadSession.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tally {
namespace {

using testing::memory;

const std::string noResponse = "No response in  2.5 seconds at each of two different baud rates.\r\n"
                               "\r\n"
                               "Check that the instrument is connected.\r\n"
                               "Otherwise remove the cable from the instrument, and then\r\n"
                               "try selecting some other instrument type\r\n"
                               "(using Options > Instrument Selection).";
const std::string notValid = "Response from instrument not valid.\r\n"
                             "Remove the cable from the instrument, and then\r\n"
                             "try selecting some other instrument type\r\n"
                             "(using Options > Instrument Selection)";
const std::string changing = "No response. Changing settings. (Takes about 5 seconds)...";

struct InstrumentWaitTest : ::testing::Test, testing::LinkBench {
    SessionResult<Received> run(std::int64_t waitFor = Waiter::never) {
        journal.begin({});
        session.openPort();
        return InstrumentWait(session, downloadPolicy(panel, waitFor)).run();
    }
    void ofType(std::int16_t type, std::int32_t samples) {
        instrument.instSelection = type;
        instrument.maxSamples = samples;
    }
    int flips() const { return static_cast<int>(std::ranges::count(panel.statuses, changing)); }
};

TEST_F(InstrumentWaitTest, ReceivesEverythingUpToTheTerminator) {
    ofType(4, 10710);
    line.sendAt(700, memory());
    const auto received = run();
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memory());
    EXPECT_FALSE(received->lowBattery());
    EXPECT_EQ(journal.receptions[0].parts[0], memory());
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(InstrumentWaitTest, WhatFollowsTheTerminatorWithinATickIsCountedAndKeptInTheJournal) {
    ofType(4, 10710);
    line.sendAt(10, memory() + "more");
    line.sendAt(259, "!");
    line.sendAt(261, "too late");
    const auto received = run();
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memory());
    EXPECT_EQ(received->followed, 5U);
    EXPECT_EQ(journal.receptions[0].parts[0], memory() + "more!");
    EXPECT_EQ(waiter.now(), 260);
}

TEST_F(InstrumentWaitTest, ACancelWhileTheLineIsWatchedEndsIt) {
    ofType(4, 10710);
    line.sendAt(10, memory());
    waiter.cancelAt(100);
    const auto received = run();
    ASSERT_FALSE(received);
    EXPECT_EQ(received.error().kind, EndKind::cancelled);
    EXPECT_EQ(waiter.now(), 100);
}

TEST_F(InstrumentWaitTest, ATerminatorInTheNoiseOfTheWrongRateIsAWrongToken) {
    automatic(7);
    answers("115200,N,8,1", memory(), 5100, "\x80\x1a\x80");
    const auto received = run();
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memory());
    EXPECT_EQ(line.firstTime("DTREnable false"), 100);
}

TEST_F(InstrumentWaitTest, ATerminatorInTheNoiseOfBothRatesEndsIt) {
    automatic(7);
    answers("none", "", 0, "\x80\x1a");
    const auto received = run();
    ASSERT_FALSE(received);
    EXPECT_EQ(received.error().kind, EndKind::wrongResponse);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{notValid});
}

TEST_F(InstrumentWaitTest, WhatArrivedWhileTheProcessStoodStillComesBeforeTheTimer) {
    automatic(7);
    waiter.standStill(1000, 60000);
    line.sendAt(2000, memory());
    const auto received = run();
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memory());
    EXPECT_EQ(flips(), 0);
}

TEST_F(InstrumentWaitTest, AWaitWithoutALimitSaysSinceWhenAndWhatToCheckAfterTenSeconds) {
    ofType(5, 10710);
    instrument.gCommPort = 3;
    line.sendAt(9999, "x");
    line.sendAt(30000, memory());
    ASSERT_TRUE(run());
    // The character at 9,999 ms begins the ten seconds anew when they are looked at, at 10,000.
    ASSERT_EQ(panel.hints.size(), 2U);
    EXPECT_TRUE(panel.hints[0].starts_with("Nothing has come since 14:05. Check that ")) << panel.hints[0];
    EXPECT_NE(panel.hints[0].find("COM3 and the type PQV-D"), std::string::npos);
    EXPECT_EQ(panel.hints[1], "");
}

TEST_F(InstrumentWaitTest, AWaitWithALimitNeedsNoHint) {
    automatic(7);
    EXPECT_FALSE(run());
    ofType(5, 10710);
    EXPECT_FALSE(run(20000));
    EXPECT_TRUE(panel.hints.empty());
}

TEST_F(InstrumentWaitTest, ALineThatFallsSilentAfterABoundedWaitIsSaidToo) {
    ofType(5, 10710);
    line.sendAt(1000, memory().substr(0, 60));
    waiter.cancelAt(30000);
    EXPECT_FALSE(run(5000));
    ASSERT_EQ(panel.hints.size(), 2U);
    EXPECT_TRUE(panel.hints[0].starts_with("Nothing has come since 14:05. Check that "));
}

TEST_F(InstrumentWaitTest, ALineThatFallsSilentAfterTheTokenIsSaidToo) {
    automatic(7);
    line.sendAt(1000, memory().substr(0, 60));
    waiter.cancelAt(30000);
    EXPECT_FALSE(run());
    ASSERT_EQ(panel.hints.size(), 2U);
    EXPECT_NE(panel.hints[0].find("Nothing has come since 14:05"), std::string::npos);
}

TEST_F(InstrumentWaitTest, TheSpecialTestSizeHasTheLimitOfItsOwnSize) {
    ofType(9, 294);
    line.sendAt(10, "P" + std::string(60000, '1'));
    EXPECT_EQ(run()->text.size(), 294U * 6 + 1024);
}

TEST_F(InstrumentWaitTest, AnotherTypeWaitsWithoutATimerAsLongAsTheUserLetsIt) {
    ofType(5, 10710);
    line.sendAt(3600000, memory());
    EXPECT_EQ(run()->text, memory());
    EXPECT_EQ(panel.log, "");
    EXPECT_EQ(line.count("PortOpen true"), 1);
}

TEST_F(InstrumentWaitTest, TheWaitForTheFirstCharacterCanBeBounded) {
    ofType(5, 10710);
    EXPECT_FALSE(run(4000));
    EXPECT_EQ(waiter.now(), 4000);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"No response in  4 seconds."});
}

TEST_F(InstrumentWaitTest, TheBoundDoesNotConcernWhatComesLater) {
    ofType(5, 10710);
    line.sendAt(100, "PQX");
    line.sendAt(9000, "\x1a");
    EXPECT_EQ(run(4000)->text, "PQX\x1a");
}

TEST_F(InstrumentWaitTest, TotalSilenceFlipsOnceAt2500AndGivesUpAt10000) {
    automatic(7);
    EXPECT_FALSE(run());
    EXPECT_EQ(waiter.now(), 10000);
    EXPECT_EQ(flips(), 1);
    EXPECT_EQ(line.firstTime("DTREnable false"), 2500);
    EXPECT_EQ(line.firstTime("DTREnable true"), 7500);
    EXPECT_EQ(line.count("DTREnable false"), 1);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{noResponse});
    EXPECT_EQ(panel.log, "Start of StartTimer: timer1.enabled=False\r\n"
                         "Start of timer1. timer1.enabled =True\r\n"
                         "Start of timer1. timer1.enabled =True\r\n");
    EXPECT_EQ(panel.statuses,
              (std::vector<std::string>{"Treating unit as PQX-K4.  Waiting for response...", changing,
                                        "Now treating unit as PQX-K4-W.  Waiting for response..."}));
}

TEST_F(InstrumentWaitTest, AnInstrumentAtTheOtherRateIsFoundAfterTheFlip) {
    automatic(7);
    answers("115200,N,8,1", memory(), 5200);
    const auto received = run();
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memory());
    EXPECT_EQ(instrument.instAutoCurrent, 8);
    EXPECT_EQ(instrument.portSettings, "115200,N,8,1");
    EXPECT_EQ(waiter.now(), 2500 + 5200 + 250);
    EXPECT_EQ(panel.statuses.back(), "Treating unit as PQX-K4-W.  Got a response. Downloading data...");
    EXPECT_NE(panel.log.find("Start of StopTimer: timer1.enabled=True\r\nGot 'KWT'.\r\n"), std::string::npos);
}

TEST_F(InstrumentWaitTest, AnAnswerDuringTheResetIsKept) {
    automatic(8);
    answers("9600,N,8,1", memory(), 100);
    EXPECT_EQ(run()->text, memory());
    EXPECT_EQ(waiter.now(), 7500 + 250);
    EXPECT_EQ(instrument.instAutoCurrent, 7);
}

TEST_F(InstrumentWaitTest, AValidAnswerAtTheFirstRateStopsTheTimer) {
    automatic(8);
    answers("115200,N,8,1", "KWT", 2400);
    line.sendAt(60000, "x\x1a");
    EXPECT_EQ(run()->text, "KWTx\x1a");
    EXPECT_EQ(flips(), 0);
    EXPECT_EQ(instrument.instAutoCurrent, 8);
}

TEST_F(InstrumentWaitTest, WhatCameAtTheOldRateIsDiscardedAndTheCountRestarts) {
    automatic(7);
    answers("115200,N,8,1", memory(), 6000, "\x01\x02\x03noise");
    const auto received = run();
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, memory());
    EXPECT_EQ(journal.receptions[0].parts, (std::vector<std::string>{"\x01\x02\x03noise", memory()}));
    EXPECT_NE(std::ranges::find(panel.progressTexts, "Characters received so far:8\r\nWaiting for data... "),
              panel.progressTexts.end());
    EXPECT_NE(std::ranges::find(panel.progressTexts, "Characters received so far:0"),
              panel.progressTexts.end());
}

TEST_F(InstrumentWaitTest, AWrongTokenFlipsAtOnceAndTheOtherRateHasItsFullTime) {
    automatic(7);
    line.onOpen = [this](const std::string& settings) {
        if (settings == "9600,N,8,1")
            waiter.after(300, [this] { line.send("PQXa"); });
    };
    EXPECT_FALSE(run());
    EXPECT_EQ(line.firstTime("DTREnable false"), 300);
    EXPECT_EQ(waiter.now(), 300 + 5000 + 2500);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{noResponse});
    EXPECT_NE(panel.log.find("Got a non-KWT.   triedBoth=False\r\n"), std::string::npos);
}

TEST_F(InstrumentWaitTest, WrongTokensAtBothRatesEndWithTheirMessage) {
    automatic(7);
    answers("none", "", 0, "PQXa");
    EXPECT_FALSE(run());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{notValid});
    EXPECT_NE(
        panel.log.find("Got a non-KWT.   triedBoth=True\r\nStart of StopTimer: timer1.enabled=True\r\n"),
        std::string::npos);
    EXPECT_EQ(line.count("DTREnable false"), 1);
}

TEST_F(InstrumentWaitTest, ATokenInLowerCaseIsValidAndMeansALowBattery) {
    automatic(7);
    line.sendAt(50, "..kwtA\x1a");
    const auto received = run();
    ASSERT_TRUE(received);
    EXPECT_EQ(received->text, "..KwtA\x1a");
    EXPECT_TRUE(received->lowBattery());
}

TEST_F(InstrumentWaitTest, NoiseAtTheWrongRateDoesNotSetTheLowBattery) {
    automatic(7);
    answers("115200,N,8,1", memory(), 5100, "xkp");
    EXPECT_FALSE(run()->lowBattery());
}

TEST_F(InstrumentWaitTest, TheComputersTimeOfTheHeaderIsKept) {
    ofType(4, 10710);
    line.sendAt(5 * 60000, memory());
    EXPECT_EQ(run()->headerSeen, toReadingTime({2024, 3, 15, 14, 10}));
}

TEST_F(InstrumentWaitTest, ATypeOf2091SamplesStopsAt48000Characters) {
    for (const std::int16_t type : std::initializer_list<std::int16_t>{1, 10}) {
        ofType(type, 2091);
        waiter.after(10, [this] { line.send("H" + std::string(60000, '1')); });
        EXPECT_EQ(run()->text.size(), 48000U);
        session.closePort();
    }
}

TEST_F(InstrumentWaitTest, OtherTypesStopAt205000Characters) {
    ofType(4, 10710);
    line.sendAt(10, "P" + std::string(300000, '1'));
    EXPECT_EQ(run()->text.size(), 205000U);
}

TEST_F(InstrumentWaitTest, AfterAFlipToType7TheLimitIs48000) {
    automatic(8);
    answers("9600,N,8,1", "KWT" + std::string(300000, '1'), 5100);
    EXPECT_EQ(run()->text.size(), 48000U);
}

TEST_F(InstrumentWaitTest, AfterAFlipToType8TheLimitIs205000) {
    automatic(7);
    answers("115200,N,8,1", "KWT" + std::string(300000, '1'), 5100);
    EXPECT_EQ(run()->text.size(), 205000U);
}

TEST_F(InstrumentWaitTest, TheProgressStartsAt1000AndWrapsOnceIn20001Characters) {
    ofType(4, 10710);
    // 20 characters a tick: the bar shows every twentieth value.
    const std::string text = "P" + std::string(20000, '1');
    for (std::size_t i = 0; i < text.size(); i += 20)
        line.sendAt(static_cast<std::int64_t>(10 + i / 20 * 250), text.substr(i, 20));
    line.sendAt(2000000, "\x1a");
    run();
    ASSERT_FALSE(panel.values.empty());
    EXPECT_EQ(panel.values.front(), 1019); // 1,000 at the first of 20 characters
    int wraps = 0;
    for (std::size_t i = 1; i < panel.values.size(); ++i)
        wraps += panel.values[i] < panel.values[i - 1] ? 1 : 0;
    EXPECT_EQ(wraps, 1);
    EXPECT_LE(*std::ranges::max_element(panel.values), 20000);
    // Character n has the value 999 + n up to 20,000; character 19,002 has 0, so character 20,001 has 999.
    EXPECT_EQ(panel.values.back(), 999);
}

TEST_F(InstrumentWaitTest, TheLabelCountsAndSaysWhenItWaits) {
    ofType(4, 10710);
    line.sendAt(1000, "PQX");
    line.sendAt(1600, "\x1a");
    run();
    EXPECT_EQ(panel.progressTexts, (std::vector<std::string>{
                                       "Waiting for response from the unit.",
                                       "Characters received so far:3",
                                       "Characters received so far:3\r\nWaiting for data... ",
                                   }));
    EXPECT_TRUE(panel.visible);
    EXPECT_TRUE(panel.isBusy);
}

TEST_F(InstrumentWaitTest, ASilentLineEndsTheDownloadWhenTheTicksPassTheLimit) {
    ofType(4, 10710);
    line.sendAt(0, "P" + std::string(600, '1'));
    EXPECT_EQ(run()->text.size(), 601U);
    // Tick 1 sees new characters; ticks 2 to 10 add up to 9; tick 11 finds 9 > 8.
    EXPECT_EQ(waiter.now(), 11 * 250);
    EXPECT_EQ(panel.progressTexts.back(), "Terminated by waiting for data");
    EXPECT_NE(panel.log.find("Terminated by waiting for data"), std::string::npos);
}

TEST_F(InstrumentWaitTest, SilenceIsWaitedForUpTo500Characters) {
    ofType(4, 10710);
    line.sendAt(0, "P" + std::string(499, '1'));
    line.sendAt(600000, "\x1a");
    EXPECT_EQ(run()->text.size(), 501U);
    EXPECT_EQ(waiter.now(), 600000 + 250);
}

TEST_F(InstrumentWaitTest, StallsAddUpOverTheWholeDownload) {
    ofType(4, 10710);
    line.sendAt(0, "P" + std::string(600, '1'));
    // A character every 750 ms: of three ticks one sees it and two are silent.
    for (int i = 1; i < 40; ++i)
        line.sendAt(i * 750 + 100, "2");
    const auto received = run();
    ASSERT_TRUE(received);
    // Nine silent ticks are allowed; the tenth ends it: 11 + 10 / 2 ticks or so, long before the characters
    // end.
    EXPECT_EQ(waiter.now(), 3750 + 250 * 0);
    EXPECT_EQ(received->text.size(), 601U + 4U);
}

TEST_F(InstrumentWaitTest, ALineThatGoesAwayIsToldAndWhatCameStaysInTheJournal) {
    ofType(4, 10710);
    line.sendAt(100, "PQX 12");
    line.loseAt(200);
    EXPECT_FALSE(run());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"COM1: the line went away"});
    EXPECT_EQ(journal.receptions[0].parts[0], "PQX 12");
}

TEST_F(InstrumentWaitTest, ALineThatGoesAwayWhileWaitingIsTold) {
    automatic(7);
    line.loseAt(200);
    EXPECT_FALSE(run());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"COM1: the line went away"});
}

TEST_F(InstrumentWaitTest, ALineThatGoesAwayDuringTheResetIsTold) {
    automatic(7);
    line.loseAt(4000);
    EXPECT_FALSE(run());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"COM1: the line went away"});
    EXPECT_EQ(waiter.now(), 4000);
}

TEST_F(InstrumentWaitTest, APortThatCannotBeReopenedIsTold) {
    automatic(7);
    line.failOpen = Fault(8002, "Invalid port number");
    line.openProblem = "COM1 is not there.";
    line.goodOpenings = 1;
    const auto received = run();
    ASSERT_FALSE(received);
    EXPECT_EQ(received.error().kind, EndKind::badPort);
    EXPECT_EQ(
        prompt.texts(),
        std::vector<std::string>{
            "Communication port not valid.\r\nTry selecting a different COM port\r\nCOM1 is not there."});
}

TEST_F(InstrumentWaitTest, AtTheSameInstantTheTimeOutComesBeforeTheCancelAndTheCharacter) {
    automatic(7);
    line.sendAt(2500, "KWT");
    waiter.cancelAt(2500);
    EXPECT_FALSE(run());
    EXPECT_EQ(flips(), 1);
    EXPECT_EQ(waiter.now(), 2500);
}

} // namespace
} // namespace tally
