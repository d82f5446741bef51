// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/StatusCheck.h"

#include "LinkBench.h"
#include "link/PromptTexts.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::header;

const std::string another = "Status check complete. You may disconnect the instrument now.\r\n"
                            " Do you want to do another?     ";
const std::string closing = "\r\nCheck that the instrument is connected or try selecting some other\r\n"
                            " instrument type (using Options > Instrument Selection).";

struct StatusCheckTest : ::testing::Test, testing::LinkBench {
    StatusCheckSession check{session};

    void SetUp() override {
        instrument.instSelection = 7;
        prompt.answers = {Answer::Ok};
    }
    // What was told after the connection prompt.
    std::string told() const { return prompt.shown.size() == 2 ? prompt.shown[1].text : "not one box"; }
};

TEST_F(StatusCheckTest, ShowsTheFieldsAndAsksForAnother) {
    prompt.answers = {Answer::Ok, Answer::No};
    answers("9600,N,8,1", header("KWT", 'c') + "\r", 800);
    const auto fields = check.StatusCheck();
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields->type, "KWT");
    EXPECT_EQ(panel.prompts,
              (std::vector<std::string>{"WAITING FOR RESPONSE FROM INSTRUMENT", "READY", fields->text()}));
    EXPECT_EQ(prompt.texts(), (std::vector<std::string>{connectionPrompt(instrument), another}));
    EXPECT_EQ(prompt.shown[0].buttons, Buttons::OkCancel);
    EXPECT_EQ(prompt.shown[1].buttons, Buttons::YesNo);
    EXPECT_FALSE(line.isOpen());
    EXPECT_EQ(line.written, "");
}

TEST_F(StatusCheckTest, YesStartsAgainAtThePrompt) {
    prompt.answers = {Answer::Ok, Answer::Yes, Answer::Ok, Answer::No};
    answers("9600,N,8,1", header() + "\r");
    EXPECT_TRUE(check.StatusCheck());
    EXPECT_EQ(prompt.texts(), (std::vector<std::string>{connectionPrompt(instrument), another,
                                                        connectionPrompt(instrument), another}));
    EXPECT_EQ(line.count("PortOpen true"), 2);
}

TEST_F(StatusCheckTest, CancelAtThePromptEndsIt) {
    prompt.answers = {Answer::Cancel};
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(line.count("PortOpen true"), 0);
}

TEST_F(StatusCheckTest, CancelAtEachOf200InstantsClosesThePort) {
    for (int i = 0; i < 200; ++i) {
        testing::LinkBench bench;
        bench.automatic(7);
        bench.prompt.answers = {Answer::Ok};
        bench.line.onOpen = [&](const std::string& settings) {
            if (settings == "115200,N,8,1")
                bench.line.sendPaced(bench.waiter.now() + 1700, "KWTa ..............", 400);
        };
        bench.waiter.cancelAt(i * 50);
        EXPECT_FALSE(StatusCheckSession(bench.session).StatusCheck());
        EXPECT_EQ(bench.waiter.now(), i * 50);
        EXPECT_EQ(bench.gErrorCallPoint, 114);
        EXPECT_EQ(bench.prompt.shown.size(), 1U);
        EXPECT_FALSE(bench.line.isOpen());
    }
}

TEST_F(StatusCheckTest, AutomaticSelectionNamesTheTypeWhoseSettingsWork) {
    automatic(8);
    prompt.answers = {Answer::Ok, Answer::No};
    answers("9600,N,8,1", header("KWT", 'c') + "\r", 6000);
    const auto fields = check.StatusCheck();
    ASSERT_TRUE(fields);
    EXPECT_EQ(panel.prompts.back(), fields->text());
    EXPECT_TRUE(fields->text().ends_with("\rAuto-selected settings now being used are for the PQX-K4"));
    EXPECT_EQ(instrument.instAutoCurrent, 7);
    EXPECT_EQ(panel.statuses[1], "No response. Changing settings. (Takes about 5 seconds)...");
}

TEST_F(StatusCheckTest, TotalSilenceFlipsOnceAndGivesUpAt10000) {
    automatic(7);
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(waiter.now(), 10000);
    EXPECT_EQ(line.count("DTREnable false"), 1);
    EXPECT_EQ(told(), "No response in  2.5 seconds at each of two different baud rates." + closing);
    EXPECT_FALSE(line.isOpen());
}

TEST_F(StatusCheckTest, AnIncompleteHeaderByTheSecondTimeOutIsShown) {
    automatic(7);
    answers("115200,N,8,1", "..KW", 5100);
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(), "By the 2nd timeout, the following incomplete header had been received:\r\n"
                      "Line1 = 'KW '. Length=2" +
                          closing);
}

TEST_F(StatusCheckTest, AWrongTokenFlipsAsABadHeader) {
    automatic(7);
    prompt.answers = {Answer::Ok, Answer::No};
    answers("115200,N,8,1", header() + "\r", 6000, "PQX");
    EXPECT_TRUE(check.StatusCheck());
    EXPECT_EQ(panel.statuses[1], "Bad header. Changing settings. (Takes about 5 seconds)...");
    EXPECT_EQ(instrument.instAutoCurrent, 8);
}

TEST_F(StatusCheckTest, WrongTokensAtBothRatesAreShown) {
    automatic(7);
    answers("none", "", 0, "xPQXab");
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(),
              "After the 2nd timeout, the following erroneous Line1 characters had been received:PQX" +
                  closing);
}

TEST_F(StatusCheckTest, ALineThatEndsWithinTheTokenIsAFragment) {
    automatic(7);
    answers("none", "", 0, "K\r");
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(), "Invalid header fragment received: 'K'" + closing);
}

TEST_F(StatusCheckTest, AHeaderWithoutAModeIsAFragment) {
    answers("9600,N,8,1", "PQX\r");
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(), "Invalid header fragment received: 'PQX'" + closing);
}

TEST_F(StatusCheckTest, NoiseIsAFragment) {
    answers("9600,N,8,1", "H\x06H\r");
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(), "Invalid header fragment received: 'H\x06H'" + closing);
    EXPECT_EQ(waiter.now(), 100 + 250);
}

TEST_F(StatusCheckTest, ATimeThatIsNoneIsAFragment) {
    answers("9600,N,8,1", header("KWT", 'a', "99-99-99 99:99") + "\r");
    const auto fields = check.StatusCheck();
    ASSERT_FALSE(fields);
    EXPECT_EQ(fields.error().kind, EndKind::wrongResponse);
    EXPECT_TRUE(told().starts_with("Invalid header fragment received: 'KWTa   1234"));
}

TEST_F(StatusCheckTest, ALaterInitialThatBeginsAReadableHeaderCounts) {
    for (const char* noise : {"p\x06", "H\x06H", "k\xffHP\r", "P..\r\nh\r"}) {
        prompt.answers = {Answer::Ok, Answer::No};
        answers("9600,N,8,1", noise + header("PQX", 'c') + "\r");
        const auto fields = check.StatusCheck();
        ASSERT_TRUE(fields) << noise;
        EXPECT_EQ(fields->type, "PQX");
        EXPECT_EQ(fields->state, "Running");
        EXPECT_FALSE(fields->lowBattery) << noise;
        EXPECT_EQ(batteryText(fields->vbatt.value()), "Vbatt = 3.806 volts");
    }
}

TEST_F(StatusCheckTest, AnEndMarkBeforeTheHeaderDoesNotMakeItDeaf) {
    prompt.answers = {Answer::Ok, Answer::No};
    answers("9600,N,8,1", "\x80\x1a\x1a" + header() + "\r");
    EXPECT_TRUE(check.StatusCheck());
}

TEST_F(StatusCheckTest, AnEndMarkWhileTheTokenIsAwaitedChangesTheRate) {
    automatic(7);
    prompt.answers = {Answer::Ok, Answer::No};
    answers("115200,N,8,1", header() + "\r", 6000, "\x1a");
    EXPECT_TRUE(check.StatusCheck());
    EXPECT_EQ(panel.statuses[1], "Bad header. Changing settings. (Takes about 5 seconds)...");
}

TEST_F(StatusCheckTest, AnUnreadableHeaderWithoutEndIsGivenUp) {
    answers("9600,N,8,1", "PQX\r");
    for (int i = 0; i < 10000; ++i)
        line.sendAt(100 + i, "12 34\r");
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(waiter.now(), 100 + 2500);
}

TEST_F(StatusCheckTest, ALowBatteryIsWarnedOf) {
    prompt.answers = {Answer::Ok, Answer::No};
    answers("9600,N,8,1", "k" + header().substr(1) + "\r");
    EXPECT_TRUE(check.StatusCheck()->lowBattery);
    EXPECT_EQ(prompt.shown[1].text, "Status Check OK but...\r\n\r\n    LOW INSTRUMENT BATTERY    ");
    EXPECT_EQ(prompt.shown[1].title, "WARNING");
}

TEST_F(StatusCheckTest, AModeLetterOutsideTheTableIsReportedWithItsCallPoint) {
    answers("9600,N,8,1", header("KWT", 'z') + "\r");
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(),
              "In status.StatusCheck: gErrorCallPoint = 113\r\nError number 9: Subscript out of range");
    EXPECT_FALSE(line.isOpen());
}

TEST_F(StatusCheckTest, APortThatCannotBeOpenedIsTold) {
    line.failOpen = Fault(8002, "Invalid port number");
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(), badPortText);
}

TEST_F(StatusCheckTest, ALineThatGoesAwayIsTold) {
    line.loseAt(400);
    EXPECT_FALSE(check.StatusCheck());
    EXPECT_EQ(told(), "COM1: the line went away");
}

TEST_F(StatusCheckTest, AnotherTypeWaitsWithoutATimer) {
    prompt.answers = {Answer::Ok, Answer::No};
    answers("9600,N,8,1", header() + "\r", 7200000);
    EXPECT_TRUE(check.StatusCheck());
    EXPECT_EQ(panel.log, "");
}

TEST_F(StatusCheckTest, TheWaitCanBeBounded) {
    StatusCheckSession bounded(session, 3000);
    EXPECT_FALSE(bounded.StatusCheck());
    EXPECT_EQ(told(), "No response in  3 seconds.");
}

TEST_F(StatusCheckTest, AnInstrumentThatNeverEndsItsLineIsNotListenedToForEver) {
    prompt.answers = {Answer::Ok, Answer::No};
    answers("9600,N,8,1", header() + std::string(300000, 'x'));
    EXPECT_TRUE(check.StatusCheck());
}

TEST_F(StatusCheckTest, APortFoundOpenIsClosedFirst) {
    check.prepare();
    EXPECT_TRUE(prompt.shown.empty());
    session.openPort();
    check.prepare();
    EXPECT_FALSE(line.isOpen());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{
                                  "In TLY.mnuItemStatusCheck_Click: Port found open. So I'll close it."});
}

} // namespace
} // namespace tally
