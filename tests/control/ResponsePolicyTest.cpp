// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ResponsePolicy.h"

#include "Bench.h"
#include "core/ModeTable.h"

namespace tally {
namespace {

using namespace testing;

const std::string closing = "Check that the instrument is connected or try selecting some other\r\n"
                            " instrument type (using Options > Instrument Selection).";

// One wait on an opened port.
class Wait : public Bench {
public:
    explicit Wait(int type) : Bench(type), session_(session()) { session_.openPort(); }
    bool run() {
        result = InstrumentWait(session_, responsePolicy(instrument)).run();
        return result.has_value();
    }
    std::string receivedText() const { return result->scan.line(); }
    bool lowBattery() const { return result->lowBattery(); }

    SessionResult<Received> result;

private:
    Session session_;
};

TEST(ResponsePolicy, AHeaderLineOfAFixedTypeEndsTheWait) {
    Wait test(7);
    test.line.sendAt(60000, header("PQX", 'C') + "\r");
    EXPECT_TRUE(test.run());
    EXPECT_EQ(test.receivedText(), header("PQX", 'C'));
    EXPECT_FALSE(test.lowBattery());
    EXPECT_TRUE(test.line.isOpen());
    EXPECT_TRUE(test.user.shown.empty());
}

TEST(ResponsePolicy, AFixedTypeHasNoTimeOutAndNoSwitch) {
    Wait test(8);
    test.line.sendAt(3600000, header("KWT", 'c') + "\r");
    EXPECT_TRUE(test.run());
    EXPECT_TRUE(test.panel.statuses.empty());
    EXPECT_EQ(test.line.count("PortOpen true"), 1);
}

TEST(ResponsePolicy, NoiseBeforeTheHeaderIsPassedOver) {
    Wait test(7);
    test.line.sendAt(5, "\r\n..?" + header("PQX", 'C') + "\r");
    EXPECT_TRUE(test.run());
    EXPECT_EQ(test.receivedText(), header("PQX", 'C'));
}

TEST(ResponsePolicy, AFamilyLetterInLowerCaseIsTheLowBatterySign) {
    for (const char* code : {"pQX", "hVN", "kWT"}) {
        Wait test(7);
        test.line.sendAt(5, header(code, 'C') + "\r");
        EXPECT_TRUE(test.run());
        EXPECT_TRUE(test.lowBattery()) << code;
        EXPECT_EQ(test.receivedText()[0], upperCase(code[0]));
    }
}

TEST(ResponsePolicy, TheAutomaticTypeIsDoneWhenTokenAndHeaderLineAreThere) {
    Wait test(11);
    test.line.sendPaced(1000, header("KWT", 'c') + "\r", 100); // ends long after the timer would have fired
    EXPECT_TRUE(test.run());
    EXPECT_EQ(test.waiter.now(), 1000 + 44 * 100);
    EXPECT_EQ(test.panel.statuses,
              std::vector<std::string>{"Treating unit as PQX-K4.  Waiting for response..."});
    EXPECT_EQ(test.line.count("PortOpen true"), 1);
}

TEST(ResponsePolicy, SilenceAtBothRatesSwitchesOnceAndGivesUp) {
    Wait test(11);
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.waiter.now(), 2500 + 5000 + 2500);
    EXPECT_EQ(test.panel.statuses,
              (std::vector<std::string>{"Treating unit as PQX-K4.  Waiting for response...",
                                        "No response. Changing settings. (Takes about 5 seconds)...",
                                        "Now treating unit as PQX-K4-W.  Waiting for response..."}));
    EXPECT_EQ(test.user.told(),
              std::vector<std::string>{
                  "No response in 2.5 seconds at each of two different baud rates.\r\n\r\n" + closing});
    EXPECT_EQ(test.callPoint, 217);
}

TEST(ResponsePolicy, TheSwitchDropsDtrForFiveSecondsAtTheOtherRate) {
    Wait test(11);
    test.line.sendAt(8000, header("KWT", 'c') + "\r");
    EXPECT_TRUE(test.run());
    EXPECT_EQ(test.line.firstTime("Settings 115200,N,8,1"), 2500);
    EXPECT_EQ(test.line.firstTime("DTREnable false"), 2500);
    EXPECT_EQ(test.line.firstTime("DTREnable true"), 7500);
    EXPECT_EQ(test.instrument.instAutoCurrent, 8);
    EXPECT_EQ(test.instrument.portSettings, "115200,N,8,1");
    EXPECT_EQ(test.callPoint, 215);
}

TEST(ResponsePolicy, FromTheFastRateTheSwitchGoesToTheSlowOne) {
    Wait test(11);
    test.instrument.instAutoCurrent = 8;
    test.line.sendAt(8000, header("KWT", 'c') + "\r");
    EXPECT_TRUE(test.run());
    EXPECT_EQ(test.instrument.instAutoCurrent, 7);
    EXPECT_EQ(test.instrument.portSettings, "9600,N,8,1");
    EXPECT_EQ(test.instrument.maxSamples, 10710);
}

TEST(ResponsePolicy, WhatCameBeforeTheSwitchIsForgotten) {
    Wait test(11);
    test.line.sendAt(100, "pabc");
    test.line.sendAt(8000, header("KWT", 'c') + "\r");
    EXPECT_TRUE(test.run());
    EXPECT_EQ(test.receivedText(), header("KWT", 'c'));
    EXPECT_FALSE(test.lowBattery());
}

TEST(ResponsePolicy, AWrongTokenAfterBothRatesIsShown) {
    Wait test(11);
    test.line.sendAt(8000, "PQXc\r");
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.waiter.now(), 10000);
    EXPECT_EQ(test.user.told(),
              std::vector<std::string>{"\r\nAfter the 2nd timeout, the following erroneous Line1 characters "
                                       "had been received:PQXc\r\n" +
                                       closing});
}

TEST(ResponsePolicy, AFragmentAfterBothRatesIsShown) {
    Wait test(11);
    test.line.sendAt(8000, "KW");
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.user.told(),
              std::vector<std::string>{"Invalid header fragment received: 'KW'\r\n" + closing});
}

TEST(ResponsePolicy, AVoltageRecorderTypeRefusesAnAmmeter) {
    for (const int type : {3, 6}) {
        Wait test(type);
        test.line.sendAt(10, header("HVA", 'C') + "\r");
        EXPECT_FALSE(test.run());
        EXPECT_EQ(test.user.told(), std::vector<std::string>{"Not Voltmeter"});
    }
}

TEST(ResponsePolicy, AVoltageRecorderTypeTakesAVoltmeter) {
    Wait test(6);
    test.line.sendAt(10, header("HTV", 'C') + "\r");
    EXPECT_TRUE(test.run());
}

TEST(ResponsePolicy, OtherTypesTakeAnAmmeter) {
    Wait test(5);
    test.line.sendAt(10, header("HVA", 'C') + "\r");
    EXPECT_TRUE(test.run());
}

TEST(ResponsePolicy, CancelReturnsAtOnceWithoutAMessage) {
    for (const std::int64_t at : {0, 1, 2499, 2500, 2501, 5000, 7499, 7500, 9999}) {
        Wait test(11);
        test.waiter.cancelAt(at);
        EXPECT_FALSE(test.run());
        EXPECT_EQ(test.waiter.now(), at);
        EXPECT_TRUE(test.user.shown.empty()) << at;
    }
}

TEST(ResponsePolicy, APortThatClosesEndsTheWait) {
    for (const int type : {7, 11})
        for (const std::int64_t at : {0, 1000, 4000, 8000}) {
            Wait test(type);
            test.line.loseAt(at);
            EXPECT_FALSE(test.run());
            EXPECT_EQ(test.user.told(),
                      std::vector<std::string>{"Terminating the initialization\r\nCOM1: the line went away"})
                << at;
            EXPECT_NE(test.panel.log.find("COM1: the line went away"), std::string::npos);
        }
}

TEST(ResponsePolicy, APortThatDoesNotReopenEndsTheWait) {
    Wait test(11);
    test.line.failOpen = Fault(8002, "Invalid port number");
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.user.told(), std::vector<std::string>{"Terminating the initialization"});
    EXPECT_EQ(test.callPoint, 215);
}

TEST(ResponsePolicy, EndlessRubbishIsWaitedOutUntilTheTimerGivesUp) {
    Wait test(11);
    for (int i = 0; i < 2000; ++i)
        test.line.sendAt(i * 10, "zx\xff\x80");
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.waiter.now(), 10000);
}

} // namespace
} // namespace tally
