// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Recover.h"

#include "Bench.h"
#include "core/Fault.h"

#include <algorithm>

namespace tally {
namespace {

using namespace testing;

const std::string temporary = "/cache/temp.dat";
const std::string notValid = "     NOT A VALID INSTRUMENT    \r         REMOVE THE CABLE NOW       \r\r";
const std::string cableOff = "         OK TO REMOVE THE CABLE NOW       \r\r";
const std::string notRecoverable =
    "    CONTINUOUS DATA; NOT RECOVERABLE     \r  CANNOT DETERMINE STOPPED TIME \r\r";

std::string memory(char mode, int readings, const std::string& code = "PQX",
                   const std::string& time = "03-15-24 14:05") {
    std::string text = header(code, mode, "0417", time) + "\r\nT:";
    for (int i = 0; i < readings; ++i)
        text += i % 10 == 9 ? " 123\r\n" : " 123";
    return text + "\x1a";
}

class Recovery : public Bench {
public:
    explicit Recovery(int type = 7) : Bench(type), session(Bench::session()) {}
    Session session;

    void comes(const std::string& text, std::int64_t at = 1000) { line.sendAt(at, text); }
    SessionResult<PendingDownload> run() { return RecoverSession(session).RecoverProc(files, temporary); }
    JournalState kept() const { return journal.receptions.back().state; }
};

TEST(Recover, RefusesAutomaticSelectionAndOpensNothing) {
    Recovery test(11);
    EXPECT_FALSE(RecoverSession(test.session).prepare());
    EXPECT_EQ(
        test.user.told(),
        std::vector<std::string>{"The 'Recover' feature is not implemented for the case of the \r\n"
                                 "instrument type being 'Auto Select'.\r\n"
                                 "\r\n"
                                 "Instead do a 'Status check' to see what instrument type the Tallyline\r\n"
                                 "ends up treating is as. (It will most likely be PQX-K4 or PQX-K4-W.)\r\n"
                                 "\r\n"
                                 "Then use Options > Instrument Selection to specifically select\r\n"
                                 "the type of instrument being used, and the 'Recover' feature will\r\n"
                                 "then be available."});
    EXPECT_TRUE(test.line.calls.empty());
}

TEST(Recover, WarnsTriesThePortAndPrompts) {
    Recovery test(3);
    EXPECT_TRUE(RecoverSession(test.session).prepare());
    EXPECT_EQ(test.user.told(), std::vector<std::string>{"                           CAUTION  \r"
                                                         "       DATA MAY NOT BE RECOVERED IF\r"
                                                         "            INSTRUMENT HAD BEEN IN \r"
                                                         " CONTINUOUS MODE AND MEMORY FILLED \r\r"});
    EXPECT_EQ(test.line.count("PortOpen true"), 1);
    EXPECT_FALSE(test.line.isOpen());
    EXPECT_EQ(test.panel.prompts, std::vector<std::string>{"   Press 'OK'.                               \r\n"
                                                           "   Then insert the cable into the instrument.\r\n"
                                                           "                                             \r\n"
                                                           "   (If the interface has a transfer switch,  \r\n"
                                                           "    make sure it's set to 'TRANSFER'.)       \r\n"
                                                           "                                             \r\n"
                                                           "     Hit 'Cancel' or use ESC key to quit     "});
}

TEST(Recover, APortThatCannotBeOpenedEndsIt) {
    Recovery test;
    test.line.failOpen = Fault(70, "Permission denied");
    EXPECT_FALSE(RecoverSession(test.session).prepare());
    EXPECT_EQ(test.user.told().back(), "Communication port not valid.\r\nTry selecting a different COM port");
    EXPECT_TRUE(test.panel.prompts.empty());
}

TEST(Recover, AFullMemoryInAStopModeIsRecovered) {
    Recovery test;
    test.comes(memory('F', 10710));
    const auto recovered = test.run();
    ASSERT_TRUE(recovered);
    // 10,710 minutes are 7 days, 10 hours and 30 minutes.
    EXPECT_EQ(recovered->text, memory('F', 10710, "PQX", "03-23-24 00:35"));
    EXPECT_EQ(recovered->id, "1");
    EXPECT_EQ(test.user.told(), (std::vector<std::string>{cableOff, " PROCEED"}));
    EXPECT_EQ(test.kept(), JournalState::accepted);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Recover, AFullMemoryInAContinuousModeIsRefused) {
    Recovery test;
    test.comes(memory('C', 10710));
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.user.told(), (std::vector<std::string>{cableOff, notRecoverable}));
    EXPECT_EQ(test.kept(), JournalState::received);
    EXPECT_TRUE(test.panel.prompts.empty());
}

TEST(Recover, AContinuousModeThatDidNotFillTheMemoryIsRecovered) {
    Recovery test;
    test.comes(memory('C', 10709));
    EXPECT_TRUE(test.run());
}

TEST(Recover, WhatIsAFullMemoryDependsOnTheType) {
    Recovery test(1);
    test.comes(memory('C', 2091));
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.user.told().back(), notRecoverable);
}

TEST(Recover, ListensWithDtrOnAndTheSettingsOfTheType) {
    Recovery test(8);
    test.instrument.gCommPort = 2;
    test.comes(memory('F', 10));
    test.run();
    const std::vector<std::string> first = {"DTREnable true", "CommPort 2",      "Settings 115200,N,8,1",
                                            "InputLen 1",     "EOFEnable false", "PortOpen true"};
    for (std::size_t i = 0; i < first.size(); ++i)
        EXPECT_EQ(test.line.calls.at(i).what, first[i]);
    EXPECT_EQ(test.line.written, "");
}

TEST(Recover, TheLabelShowsThePortThenTheFirstCharacters) {
    Recovery test;
    test.instrument.gCommPort = 3;
    const std::string text = memory('F', 10);
    test.comes(text);
    test.run();
    EXPECT_EQ(test.panel.statuses,
              (std::vector<std::string>{" Cancel or Escape to quit\rCOM3  in use",
                                        text.substr(0, 47) + "\rPROCESSING DATA; WAIT"}));
}

TEST(Recover, TheReportAddsStartStopAndReadings) {
    Recovery test;
    test.comes(memory('F', 60));
    test.run();
    ASSERT_EQ(test.panel.prompts.size(), 1U);
    EXPECT_NE(test.panel.prompts[0].find("Start Time 14:05  Mar 15, 24"), std::string::npos);
    EXPECT_NE(test.panel.prompts[0].find("  Downloaded (stopped):  15:05  Mar 15, 24"), std::string::npos);
    EXPECT_NE(test.panel.prompts[0].find("  Readings: 60"), std::string::npos);
}

TEST(Recover, TheTemporaryFileHoldsTheReceivedTextAndStays) {
    Recovery test;
    test.files.contents[temporary] = "of the last time";
    test.comes(memory('F', 60));
    test.run();
    EXPECT_EQ(test.files.contents[temporary], "\"" + memory('F', 60) + "\"\r\n");
}

TEST(Recover, AHeaderLetterInLowerCaseIsALowBattery) {
    Recovery test;
    test.comes(memory('F', 60, "pQX"));
    const auto recovered = test.run();
    ASSERT_TRUE(recovered);
    EXPECT_EQ(recovered->text.substr(0, 3), "PQX");
    const Message& last = test.user.shown.back();
    EXPECT_EQ(last.text, "    LOW INSTRUMENT BATTERY    ");
    EXPECT_EQ(last.title, "WARNING");
    EXPECT_TRUE(last.exclamation);
}

TEST(Recover, TheLowBatteryWarningComesAlsoWhenItFails) {
    Recovery test;
    test.comes(memory('C', 10710, "pQX"));
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.user.told().back(), "    LOW INSTRUMENT BATTERY    ");
}

TEST(Recover, AnotherCharacterAtOffset46IsNoValidInstrument) {
    Recovery test;
    test.comes(";" + header("PQX", 'F') + "\r\nX: 123");
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.user.told(), std::vector<std::string>{notValid});
    EXPECT_EQ(test.waiter.now(), 1000); // at once, the rest is not waited for
    EXPECT_EQ(test.kept(), JournalState::refused);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Recover, ATextThatEndsBeforeOffset46IsNoValidInstrument) {
    for (const char* text : {"\x1a", "zzz\x1a", "PQX\x1a", "PQXF   0417\r\nT: 1 2 3\x1a"}) {
        Recovery test;
        test.comes(text);
        EXPECT_FALSE(test.run());
        EXPECT_EQ(test.user.told(), std::vector<std::string>{notValid});
    }
}

TEST(Recover, AVoltageRecorderTypeRefusesAnAmmeter) {
    for (const int type : {3, 6}) {
        Recovery test(type);
        test.comes(memory('F', 10, "HVA"));
        EXPECT_FALSE(test.run());
        EXPECT_EQ(test.user.told(), std::vector<std::string>{"Not Voltmeter"});
    }
    Recovery ammeter(7);
    ammeter.comes(memory('F', 10, "HVA"));
    EXPECT_TRUE(ammeter.run());
    Recovery voltmeter(6);
    voltmeter.comes(memory('F', 10, "TZV").replace(0, 1, "H"));
    EXPECT_TRUE(voltmeter.run());
}

TEST(Recover, ReceivesAtMost80100Characters) {
    const std::string start = header("PQX", 'F') + "\r\nT:";
    Recovery fits;
    fits.comes(start + std::string(80100 - start.size() - 1, ' ') + "\x1a");
    EXPECT_TRUE(fits.run());
    Recovery tooLong;
    tooLong.comes(start + std::string(80101 - start.size() - 1, ' ') + "\x1a");
    EXPECT_THROW(tooLong.run(), Fault);
    EXPECT_FALSE(tooLong.line.isOpen());
    EXPECT_EQ(tooLong.kept(), JournalState::interrupted);
    EXPECT_FALSE(tooLong.panel.visible);
}

TEST(Recover, TheProgressIs1000AfterTheHeaderAndWrapsPast20000) {
    Recovery test;
    const std::string start = header("PQX", 'F') + "\r\nT:";
    test.comes(start + std::string(22000 - start.size() - 1, ' ') + "\x1a");
    test.run();
    // The 45th character ends the header line and counts as 1,000; from there on each adds one, so that the
    // character 1,000 shows 1,955 and the 19,000th 19,955. The 19,046th passes 20,000 and shows 0.
    const auto& values = test.panel.values;
    EXPECT_EQ(values.at(0), 0);
    EXPECT_EQ(values.at(1), 1955);
    EXPECT_EQ(values.at(19), 19955);
    EXPECT_EQ(values.at(20), 954);
    EXPECT_EQ(values.at(21), 1954);
}

TEST(Recover, WithoutDataItWaitsUntilCancel) {
    Recovery test;
    test.waiter.cancelAt(86400000);
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.waiter.now(), 86400000);
    EXPECT_TRUE(test.user.shown.empty());
    EXPECT_FALSE(test.waiter.cancelRequested());
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Recover, ACancelAtAnyOf200InstantsLeavesNothingBehind) {
    const std::string text = memory('F', 300);
    const auto total = static_cast<std::int64_t>(text.size());
    for (int i = 0; i <= 200; ++i) {
        Recovery test;
        test.line.sendPaced(1, text, 1);
        test.waiter.cancelAt(i * total / 201);
        EXPECT_FALSE(test.run());
        EXPECT_TRUE(test.user.shown.empty());
        EXPECT_TRUE(test.files.contents.empty());
        EXPECT_FALSE(test.line.isOpen());
        EXPECT_FALSE(test.panel.visible);
        EXPECT_EQ(test.kept(), JournalState::interrupted);
        EXPECT_EQ(test.line.written, "");
    }
}

TEST(Recover, ACancelWhileTheBoxAboutTheCableIsShownEndsIt) {
    Recovery test;
    test.comes(memory('F', 10));
    struct CancellingUser : PatientUser {
        explicit CancellingUser(VirtualWaiter& waiter) : waiter_(waiter) {}
        Answer show(const Message& message) override {
            waiter_.cancelNow();
            return PatientUser::show(message);
        }
        VirtualWaiter& waiter_;
    } user(test.waiter);
    Session session({test.line, test.waiter, user, test.instrument, test.journal, test.callPoint},
                    test.panel);
    EXPECT_FALSE(RecoverSession(session).RecoverProc(test.files, temporary));
    EXPECT_EQ(user.told(), std::vector<std::string>{cableOff});
    EXPECT_TRUE(test.files.contents.empty());
    EXPECT_EQ(test.kept(), JournalState::received);
}

TEST(Recover, ACablePulledAtAnyOf200InstantsIsTold) {
    const std::string text = memory('F', 300);
    const auto total = static_cast<std::int64_t>(text.size());
    for (int i = 0; i <= 200; ++i) {
        Recovery test;
        test.line.sendPaced(1, text, 1);
        const std::int64_t at = i * total / 201;
        test.line.loseAt(at);
        EXPECT_FALSE(test.run());
        EXPECT_EQ(test.user.told(), std::vector<std::string>{"COM1: the line went away"}) << at;
        EXPECT_EQ(test.journal.receptions.back().parts.back(), text.substr(0, static_cast<std::size_t>(at)));
        EXPECT_EQ(test.kept(), JournalState::interrupted);
    }
}

TEST(Recover, APortThatHasGoneAfterThePromptIsTold) {
    Recovery test;
    test.line.failOpen = Fault(8002, "Invalid port number");
    EXPECT_FALSE(test.run());
    EXPECT_EQ(test.user.told().size(), 1U);
}

TEST(Recover, AFullDiskIsAFaultAndTheTextStaysInTheJournal) {
    Recovery test;
    test.comes(memory('F', 60));
    test.files.failWrite = fault::diskFull();
    EXPECT_THROW(test.run(), Fault);
    EXPECT_EQ(test.kept(), JournalState::received);
    EXPECT_TRUE(test.panel.prompts.empty());
    EXPECT_FALSE(test.panel.visible);
}

TEST(Recover, ABlankModeIsA) {
    Recovery test;
    test.comes(memory(' ', 4));
    const auto recovered = test.run();
    ASSERT_TRUE(recovered);
    // Four readings of 15 minutes.
    EXPECT_EQ(recovered->text, memory(' ', 4, "PQX", "03-15-24 15:05"));
}

TEST(Recover, CharactersBehindTheEndMarkAreWarnedOf) {
    Recovery test;
    test.comes(memory('F', 10) + " 123\x1a");
    EXPECT_TRUE(test.run());
    EXPECT_TRUE(test.user.shown[1].text.starts_with("5 characters followed the end mark"));
    EXPECT_EQ(test.user.shown[1].title, "WARNING");
}

TEST(Recover, TheWaitForTheFirstCharacterCanBeBounded) {
    Recovery test;
    const auto nothing = RecoverSession(test.session, 4000).RecoverProc(test.files, temporary);
    ASSERT_FALSE(nothing);
    EXPECT_EQ(nothing.error().kind, EndKind::noResponse);
    EXPECT_EQ(test.waiter.now(), 4000);
    EXPECT_EQ(test.user.told(), std::vector<std::string>{"No response in  4 seconds."});
}

TEST(Recover, AWaitWithoutALimitSaysWhatToCheckAfterTenSeconds) {
    Recovery test;
    test.comes(memory('F', 10), 15000);
    EXPECT_TRUE(test.run());
    ASSERT_EQ(test.panel.hints.size(), 2U);
    EXPECT_TRUE(test.panel.hints[0].starts_with("Nothing has come since 14:05. Check that "));
    EXPECT_EQ(test.panel.hints[1], "");
}

TEST(Recover, ReadingsThatWereDamagedOnTheLineAreWarnedOf) {
    Recovery test;
    std::string text = memory('F', 10);
    text.insert(text.find("T:") + 2, " 1A ");
    test.comes(text);
    EXPECT_TRUE(test.run());
    EXPECT_EQ(std::count_if(test.user.shown.begin(), test.user.shown.end(),
                            [](const Message& message) {
                                return message.title == "WARNING" &&
                                       message.text.find("1 reading(s) that are no numbers") !=
                                           std::string::npos;
                            }),
              1);
}

TEST(Recover, AModeOutsideTheTableIsAFault) {
    Recovery test;
    test.comes(memory('Q', 60));
    EXPECT_THROW(test.run(), Fault);
    EXPECT_EQ(test.kept(), JournalState::received);
}

TEST(Recover, ATimeFieldThatIsNoDateIsAFault) {
    Recovery test;
    test.comes(memory('F', 60, "PQX", "??????????????"));
    EXPECT_THROW(test.run(), Fault);
    EXPECT_TRUE(test.files.contents.empty());
}

TEST(Recover, TheJournalSaysThatItWasARecover) {
    Recovery test;
    test.comes(memory('F', 60));
    test.run();
    EXPECT_EQ(test.journal.receptions.at(0).header.command, "recover");
    EXPECT_EQ(test.journal.receptions.at(0).header.settings, "9600,N,8,1");
    EXPECT_EQ(test.journal.receptions.at(0).header.instrumentType, 7);
}

} // namespace
} // namespace tally
