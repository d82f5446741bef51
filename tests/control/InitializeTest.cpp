// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Initialize.h"

#include "Bench.h"
#include "control/ModeLetter.h"

#include <random>

namespace tally {
namespace {

using namespace testing;

const std::string initString14h05 = "03-15-24 14:05 c1\r";

// An instrument on the virtual line: sends its header when the port opens, answers the command with "T" and
// the 18 characters with its new header and ctrl/Z.
class Instrument : public Bench {
public:
    explicit Instrument(int type = 7) : Bench(type) {
        line.onOpen = [this](const std::string&) { say(10, response); };
        line.onOutput = [this](const std::string& characters) { answer(characters); };
    }

    std::string response = header("PQX", 'C') + "\r\n";
    std::string toCommand = "abcT";
    std::string toInitString = ";" + header("PQX", 'i') + "\r\n\x1a";
    std::vector<std::pair<std::int64_t, std::string>> sent; // with times

    // How many instruments were set and read back.
    int run(char IMode = 'i') {
        InitializeSession session(services(), panel, rules);
        result = session.Initialize(IMode);
        abortFrmErrorFlag = session.abortFrmErrorFlag();
        int count = 0;
        for (const std::string& question : user.questions(Buttons::YesNo))
            count += question.starts_with("Initialization complete.") ? 1 : 0;
        return count;
    }
    InitializeRules rules;
    bool abortFrmErrorFlag = false;
    SessionResult<ReadBack> result;
    std::string connectPrompt() const { return user.questions(Buttons::OkCancel).at(0); }
    std::string reported(std::size_t i = 0) const { return user.questions(Buttons::YesNo).at(i); }
    static std::int64_t whole() { return 10 + 200 + 20 + 500 + 3000; }

private:
    void say(std::int64_t after, const std::string& text) {
        waiter.after(after, [this, text] { line.send(text); });
    }
    void answer(const std::string& characters) {
        sent.emplace_back(waiter.now(), characters);
        if (characters.size() == 1)
            say(20, toCommand);
        else
            say(3000, toInitString);
    }
};

TEST(Initialize, WarnsBeforeAnythingElse) {
    Bench bench(7);
    Session session = bench.session();
    bench.user.connections = 0;
    EXPECT_FALSE(prepareInitialize(session));
    ASSERT_EQ(bench.user.shown.size(), 1U);
    const Message& warning = bench.user.shown[0];
    EXPECT_EQ(warning.text, "     Warning! - This Function will clear\r"
                            "    All previous Data from the instrument\r"
                            "Select 'OK' to continue, or  'CANCEL' to abort");
    EXPECT_EQ(warning.buttons, Buttons::OkCancel);
    EXPECT_TRUE(warning.exclamation);
    EXPECT_EQ(warning.defaultAnswer, Answer::Cancel);
    EXPECT_TRUE(bench.line.calls.empty());
}

TEST(Initialize, TriesThePortAfterOk) {
    Bench bench(7);
    Session session = bench.session();
    bench.instrument.gCommPort = 4;
    EXPECT_TRUE(prepareInitialize(session));
    EXPECT_EQ(bench.line.count("CommPort 4"), 1);
    EXPECT_EQ(bench.line.count("PortOpen true"), 1);
    EXPECT_FALSE(bench.line.isOpen());
}

TEST(Initialize, APortThatCannotBeOpenedEndsItBeforeAnyDialog) {
    Bench bench(7);
    Session session = bench.session();
    bench.line.failOpen = Fault(8005, "Port already open");
    EXPECT_FALSE(prepareInitialize(session));
    EXPECT_EQ(bench.user.told(), std::vector<std::string>{"Communication port not valid.\r\n"
                                                          "Try selecting a different COM port"});
}

TEST(Initialize, SendsTabAndThenTheEighteenCharacters) {
    Instrument test;
    EXPECT_EQ(test.run('i'), 1);
    EXPECT_EQ(test.line.written, "\t" + initString14h05);
    ASSERT_EQ(test.sent.size(), 2U);
    EXPECT_EQ(test.sent[0], (std::pair<std::int64_t, std::string>{10 + 200, "\t"}));
    EXPECT_EQ(test.sent[1], (std::pair<std::int64_t, std::string>{10 + 200 + 20 + 500, initString14h05}));
}

TEST(Initialize, AllTwelveModesAreSentAsReducedLetterAndDigit) {
    const std::vector<std::string> codes = {"a0", "b0", "c0", "d0", "e0", "f0",
                                            "a1", "b1", "c1", "d1", "e1", "f1"};
    for (std::size_t i = 0; i < codes.size(); ++i) {
        Instrument test;
        test.run(static_cast<char>('a' + i));
        EXPECT_EQ(test.line.written, "\t03-15-24 14:05 " + codes[i] + "\r");
    }
}

TEST(Initialize, AResponseWithABlankThirdCharacterGetsDc4AndABlankMode) {
    Instrument test(1);
    test.response = header("HV ", ' ') + "\r\n";
    test.toInitString = header("HV ", ' ') + "\r\n\x1a";
    EXPECT_EQ(test.run('l'), 1);
    EXPECT_EQ(test.line.written, "\x14"
                                 "03-15-24 14:05  0\r");
    EXPECT_EQ(test.user.told(),
              std::vector<std::string>{"HVN 40 or 80 only have 15 min average, continuoue mode"});
    EXPECT_NE(test.reported().find(" Mode setting:       Average    Cont     15  min interval\r"),
              std::string::npos);
}

TEST(Initialize, OpensThePortWithTheSettingsOfTheType) {
    Instrument test(8);
    test.instrument.gCommPort = 6;
    test.run();
    const std::vector<std::string> first = {"CommPort 6", "Settings 115200,N,8,1", "InputLen 1",
                                            "EOFEnable false", "PortOpen true"};
    for (std::size_t i = 0; i < first.size(); ++i)
        EXPECT_EQ(test.line.calls.at(i).what, first[i]);
}

TEST(Initialize, TheLabelTracesTheExchange) {
    Instrument test;
    test.run();
    const std::string start =
        "INITIALIZING...\r  - May take around 15 seconds\r\r(You can cancel at any time)";
    EXPECT_EQ(
        test.panel.statuses,
        (std::vector<std::string>{
            start, start + "\r\nIMode$=X", start + "\r\nIMode$=X\r\nInitstring=" + initString14h05,
            start + "\r\nIMode$=X\r\nInitstring=" + initString14h05 + "\r\nInstrument is initializing..."}));
}

TEST(Initialize, ReportsWhatTheInstrumentReadsBackWithNoAsTheDefault) {
    Instrument test;
    test.run();
    const Message& question = test.user.shown.back();
    EXPECT_EQ(question.buttons, Buttons::YesNo);
    EXPECT_EQ(question.defaultAnswer, Answer::No);
    EXPECT_FALSE(question.exclamation);
    EXPECT_EQ(question.text, "Initialization complete. New settings as read back from instrument:\r\n\r\n"
                             " Type: PQX           Serial Number 0417\r"
                             " Mode setting:     Min/Max/Avg  Cont     1  min interval\r"
                             " Time                     14:05 Mar 15, 24\r\r"
                             "       RETURN THE SWITCH TO 'STANDBY'   \r"
                             "           OR REMOVE THE CABLE NOW       \r\r"
                             " Do you want to do another?     \r");
    EXPECT_FALSE(test.line.isOpen());
    EXPECT_EQ(test.user.told(), std::vector<std::string>{});
}

TEST(Initialize, AReadBackInitialInLowerCaseIsTaken) {
    Instrument test;
    test.toInitString = header("pQX", 'd') + "\x1a";
    EXPECT_EQ(test.run('d'), 1);
    EXPECT_NE(test.reported().find(" Type: PQX "), std::string::npos);
    EXPECT_NE(test.reported().find("  Average    Stop     15  min interval"), std::string::npos);
    EXPECT_TRUE(test.user.told().empty()); // the warning comes from the response alone
}

TEST(Initialize, ALowBatteryInTheResponseIsAWarningAfterTheExchange) {
    Instrument test;
    test.response = header("pQX", 'C') + "\r\n";
    EXPECT_EQ(test.run(), 1);
    ASSERT_EQ(test.user.shown.size(), 3U);
    const Message& warning = test.user.shown[1];
    EXPECT_EQ(warning.text, "Initialization is complete, but...\r\n\r\n    LOW INSTRUMENT BATTERY    ");
    EXPECT_EQ(warning.title, "WARNING");
    EXPECT_TRUE(warning.exclamation);
}

TEST(Initialize, TwoInstrumentsOneAfterTheOther) {
    Instrument test;
    test.user.connections = 2;
    test.user.another = {Answer::Yes, Answer::No};
    EXPECT_EQ(test.run(), 2);
    EXPECT_EQ(test.line.written, "\t" + initString14h05 + "\t" + initString14h05);
    EXPECT_EQ(test.user.questions(Buttons::OkCancel).size(), 2U);
    EXPECT_EQ(test.line.count("PortOpen true"), 2);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Initialize, CancelAtTheSecondPromptEndsIt) {
    Instrument test;
    test.user.another = {Answer::Yes};
    EXPECT_EQ(test.run(), 1);
    EXPECT_EQ(test.line.count("PortOpen true"), 1);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Initialize, CancelAtTheFirstPromptOpensNothing) {
    Instrument test;
    test.user.connections = 0;
    EXPECT_EQ(test.run(), 0);
    EXPECT_TRUE(test.line.calls.empty());
    EXPECT_TRUE(test.panel.statuses.empty());
}

TEST(Initialize, ThePromptHasTheAutomaticLineOnlyForTheAutomaticType) {
    Instrument fixed;
    fixed.user.connections = 0;
    fixed.run();
    EXPECT_EQ(fixed.connectPrompt(), "   Insert the cable into the instrument.     \r\n"
                                     "             Then Press 'OK'.                \r\n"
                                     "                                             \r\n"
                                     "   (If the interface has a transfer switch,  \r\n"
                                     "    make sure it's set to 'TRANSFER'.)       \r\n"
                                     "                                             \r\n"
                                     "     Hit 'Cancel' or use ESC key to quit     ");
    EXPECT_FALSE(fixed.user.shown[0].exclamation);
    Instrument automatic(11);
    automatic.user.connections = 0;
    automatic.run();
    EXPECT_NE(automatic.connectPrompt().find("Auto select: Initial port settings = 9600,N,8,1\r\n"),
              std::string::npos);
}

TEST(Initialize, AutomaticSelectionSwitchesAndThenInitializes) {
    Instrument test(11);
    test.response = header("KWT", 'C') + "\r\n";
    test.line.onOpen = [&test](const std::string& settings) {
        if (settings == "115200,N,8,1")
            test.waiter.after(6000, [&test] { test.line.send(test.response); });
    };
    EXPECT_EQ(test.run(), 1);
    EXPECT_EQ(test.instrument.instAutoCurrent, 8);
    EXPECT_EQ(test.line.written, "\t" + initString14h05);
    EXPECT_EQ(test.panel.statuses.back(),
              "Now treating unit as PQX-K4-W.  Waiting for response...\r\nIMode$=T"
              "\r\nInitstring=" +
                  initString14h05 + "\r\nInstrument is initializing...");
}

TEST(Initialize, SilenceAtBothRatesEndsItWithNothingSent) {
    Instrument test(11);
    test.response = "";
    EXPECT_EQ(test.run(), 0);
    EXPECT_EQ(test.line.written, "");
    EXPECT_EQ(test.user.questions(Buttons::OkCancel).size(), 1U);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Initialize, ACtrlZBeforeTheReadBackDoesNotEndTheInput) {
    Instrument test;
    test.response = header("PQX", 'C') + "\r\n 12 13\x1a";
    test.toCommand = "\x1aT";
    EXPECT_EQ(test.run(), 1);
}

TEST(Initialize, AnInstrumentThatNeverSendsTIsLeftByCancelAndThePromptComesAgain) {
    Instrument test;
    test.toCommand = "no such letter";
    test.waiter.cancelAt(60000);
    EXPECT_EQ(test.run(), 0);
    EXPECT_EQ(test.line.written, "\t");
    EXPECT_EQ(test.user.questions(Buttons::OkCancel).size(), 2U);
    EXPECT_TRUE(test.user.told().empty());
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Initialize, AfterACancelOkOpensThePortAgain) {
    Instrument test;
    test.toCommand = "";
    test.user.connections = 2;
    test.waiter.cancelAt(5000);
    test.waiter.at(5001, [&test] { test.toCommand = "T"; });
    bool closedMeanwhile = true;
    test.user.onConnect = [&] { closedMeanwhile = closedMeanwhile && !test.line.isOpen(); };
    // The second exchange begins at 5000: its answer to the command is taken at 5210.
    EXPECT_EQ(test.run(), 1);
    EXPECT_TRUE(closedMeanwhile);
    EXPECT_EQ(test.line.count("PortOpen true"), 2);
    EXPECT_EQ(test.line.written, "\t\t" + initString14h05);
}

TEST(Initialize, AnInstrumentThatNeverSendsCtrlZIsLeftByCancel) {
    Instrument test;
    test.toInitString = header("PQX", 'i') + "\r\n";
    test.waiter.cancelAt(60000);
    EXPECT_EQ(test.run(), 0);
    EXPECT_EQ(test.waiter.now(), 60000);
    EXPECT_TRUE(test.user.questions(Buttons::YesNo).empty());
}

TEST(Initialize, AReadBackOfEndlessCharactersIsLeftByCancel) {
    Instrument test;
    test.toInitString = "P";
    for (int i = 0; i < 3000; ++i)
        test.line.sendAt(5000 + i, std::string(100, 'x'));
    test.waiter.cancelAt(7000);
    EXPECT_EQ(test.run(), 0);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Initialize, AReadBackModeOutsideTheTableIsAFaultWithThePortClosed) {
    Instrument test;
    test.toInitString = header("PQX", 'z') + "\x1a";
    EXPECT_THROW(test.run(), Fault);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Initialize, AReadBackCutShortIsAFaultWithThePortClosed) {
    Instrument test;
    test.toInitString = "PQ\x1a";
    EXPECT_THROW(test.run(), Fault);
    EXPECT_FALSE(test.line.isOpen());
}

TEST(Initialize, NothingIsSentAfterACancelAtAnyOf200Instants) {
    for (int i = 0; i <= 200; ++i) {
        const std::int64_t at = i * (Instrument::whole() + 100) / 200;
        Instrument test;
        test.waiter.cancelAt(at);
        const int count = test.run();
        EXPECT_EQ(count, at > Instrument::whole() ? 1 : 0) << at;
        for (const auto& [when, what] : test.sent)
            EXPECT_LT(when, at) << "sent after a cancel";
        EXPECT_FALSE(test.line.isOpen());
        EXPECT_TRUE(test.line.written.empty() || test.line.written == "\t" ||
                    test.line.written == "\t" + initString14h05);
        EXPECT_TRUE(test.user.told().empty());
    }
}

TEST(Initialize, ACancelInTheExchangeShowsThePromptAgainButInTheWaitEndsIt) {
    for (const auto& [at, prompts] : {std::pair{5, 1U}, std::pair{100, 2U}, std::pair{215, 2U},
                                      std::pair{400, 2U}, std::pair{2000, 2U}}) {
        Instrument test;
        test.waiter.cancelAt(at);
        test.run();
        EXPECT_EQ(test.user.questions(Buttons::OkCancel).size(), prompts) << at;
    }
}

TEST(Initialize, ACablePulledAtAnyOf200InstantsEndsItWithAMessage) {
    for (int i = 0; i <= 200; ++i) {
        const std::int64_t at = i * Instrument::whole() / 201;
        Instrument test;
        test.line.loseAt(at);
        EXPECT_EQ(test.run(), 0) << at;
        EXPECT_EQ(test.user.told(),
                  std::vector<std::string>{"Terminating the initialization\r\nCOM1: the line went away"})
            << at;
        EXPECT_FALSE(test.line.isOpen());
        for (const auto& [when, what] : test.sent)
            EXPECT_LE(when, at);
    }
}

TEST(Initialize, APortThatHasGoneBeforeThePromptIsTold) {
    Instrument test;
    test.line.failOpen = Fault(8002, "Invalid port number");
    EXPECT_EQ(test.run(), 0);
    EXPECT_EQ(test.user.told().size(), 1U);
    EXPECT_EQ(test.line.written, "");
}

TEST(Initialize, TheConnectionPromptDefaultsToCancel) {
    Instrument test;
    test.run();
    EXPECT_EQ(test.user.shown[0].buttons, Buttons::OkCancel);
    EXPECT_EQ(test.user.shown[0].defaultAnswer, Answer::Cancel);
}

// A download of instrument 0417 that no file holds.
void keepUnsaved(MemoryJournal& journal, JournalState state) {
    journal.begin({.commPort = 2, .instrumentType = 7, .pcTime = toReadingTime({2024, 3, 15, 14, 5})});
    journal.append(header("PQX", 'c') + "\rT: 1");
    journal.end(state);
}

TEST(Initialize, AnInstrumentWhoseDownloadIsNotSavedIsNotErasedUntilTheUserSaysSo) {
    for (const auto state :
         {JournalState::accepted, JournalState::received, JournalState::interrupted, JournalState::refused}) {
        Instrument test;
        keepUnsaved(test.journal, state);
        EXPECT_EQ(test.run(), 0);
        EXPECT_EQ(test.line.written, "");
        const Message& question = test.user.shown.back();
        EXPECT_EQ(question.buttons, Buttons::YesNo);
        EXPECT_EQ(question.defaultAnswer, Answer::No);
        EXPECT_TRUE(question.text.starts_with("A download of this instrument is not saved yet:\r\n"
                                              "14:05  Mar 15, 24  download on COM2, PQX Ser. 0417"));
        ASSERT_FALSE(test.result);
        EXPECT_EQ(test.result.error().kind, EndKind::unsavedDownload);
        EXPECT_FALSE(test.line.isOpen());

        Instrument willing;
        keepUnsaved(willing.journal, state);
        willing.user.another = {Answer::Yes};
        EXPECT_EQ(willing.run(), 1);
    }
}

TEST(Initialize, DownloadsOfOtherInstrumentsAndSavedOnesDoNotMatter) {
    Instrument test;
    keepUnsaved(test.journal, JournalState::saved);
    test.response = header("PQX", 'C', "0999") + "\r\n";
    keepUnsaved(test.journal, JournalState::accepted);
    EXPECT_EQ(test.run(), 1);
    Instrument saved;
    keepUnsaved(saved.journal, JournalState::saved);
    EXPECT_EQ(saved.run(), 1);
}

TEST(Initialize, TheWaitForTheFirstCharacterCanBeBounded) {
    Instrument test;
    test.response = "";
    test.rules.waitFor = 4000;
    EXPECT_EQ(test.run(), 0);
    EXPECT_TRUE(test.abortFrmErrorFlag);
    EXPECT_EQ(test.user.told(), std::vector<std::string>{"No response in  4 seconds."});
    EXPECT_EQ(test.result.error().kind, EndKind::noResponse);
    EXPECT_EQ(test.waiter.now(), 4000);
}

TEST(Initialize, OneInstrumentIsSetWithoutAQuestionAboutAnother) {
    Instrument test;
    test.rules.once = true;
    EXPECT_EQ(test.run(), 0);
    ASSERT_TRUE(test.result);
    EXPECT_TRUE(test.result->report.starts_with("Initialization complete."));
    EXPECT_TRUE(test.user.questions(Buttons::YesNo).empty());
    Instrument silent;
    silent.rules.once = true;
    silent.toCommand = "";
    silent.waiter.cancelAt(60000);
    silent.run();
    EXPECT_EQ(silent.result.error().kind, EndKind::cancelled);
    EXPECT_EQ(silent.user.questions(Buttons::OkCancel).size(), 1U);
}

TEST(Initialize, AWaitOfTheExchangeSaysWhatToCheckAfterTenSeconds) {
    Instrument test;
    test.toCommand = "";
    test.waiter.cancelAt(60000);
    test.run();
    ASSERT_EQ(test.panel.hints.size(), 2U);
    EXPECT_TRUE(test.panel.hints[0].starts_with("Nothing has come since 14:05. Check that "));
    EXPECT_EQ(test.panel.hints[1], "");
}

TEST(Initialize, RubbishFromTheInstrumentNeverHangsOrSendsMoreThanTheExchange) {
    std::mt19937 random(1);
    for (int round = 0; round < 50; ++round) {
        Instrument test(round % 2 == 0 ? 7 : 11);
        test.response = "";
        for (int i = 0; i < 400; ++i)
            test.line.sendAt(i * 50, std::string(1, static_cast<char>(random())));
        test.toCommand = test.toInitString = "";
        test.waiter.cancelAt(30000);
        try {
            test.run();
        } catch (const Fault&) {
            // a read-back of rubbish
        }
        EXPECT_FALSE(test.line.isOpen());
        EXPECT_LE(test.line.written.size(), 19U);
    }
}

} // namespace
} // namespace tally
