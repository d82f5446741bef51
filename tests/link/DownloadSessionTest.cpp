// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/DownloadSession.h"

#include "LinkBench.h"
#include "core/Fault.h"
#include "link/InformationReport.h"
#include "link/PromptTexts.h"
#include "link/ValidationReport.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::header;
using testing::lines;
using testing::memory;

const std::string proceed = " PROCEED";
const std::string question = "Enter date and time of the field initialization\rusing format 'mm-dd-yy hh:mm'";

struct DownloadSessionTest : ::testing::Test, testing::LinkBench {
    DownloadSession download{session};

    void SetUp() override {
        instrument.instSelection = 7;
        instrument.gCommPort = 2;
    }
    bool prepare() { return download.prepare(files, ".").has_value(); }
    void sends(const std::string& text) { answers("9600,N,8,1", text); }
    JournalState state() const { return journal.receptions.back().state; }
    void expectTidy() const {
        EXPECT_FALSE(line.isOpen());
        EXPECT_FALSE(panel.visible);
        EXPECT_FALSE(panel.isBusy);
        EXPECT_EQ(panel.mainStatuses.back(), "");
    }
};

TEST_F(DownloadSessionTest, APortThatCannotBeOpenedEndsTheCommand) {
    line.failOpen = Fault(8002, "Invalid port number");
    line.openProblem = "COM2 (/dev/ttyS1) is not there. Check that the adapter is plugged in.";
    EXPECT_FALSE(prepare());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{
                                  "Communication port not valid.\r\nTry selecting a different COM port\r\n"
                                  "COM2 (/dev/ttyS1) is not there. Check that the adapter is plugged in."});
    EXPECT_TRUE(panel.prompts.empty());
}

TEST_F(DownloadSessionTest, ThePromptStandsInThePanelAfterTheProbe) {
    EXPECT_TRUE(prepare());
    EXPECT_EQ(panel.prompts, std::vector<std::string>{connectionPrompt(instrument)});
    EXPECT_EQ(line.count("CommPort 2"), 1);
    EXPECT_EQ(line.count("PortOpen true"), 1);
    EXPECT_FALSE(line.isOpen());
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(DownloadSessionTest, VoltageRecordersAskForTheirDisplaySwitch) {
    for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 6}) {
        instrument.instSelection = type;
        prompt.answers = {Answer::Ok, Answer::Cancel};
        prompt.shown.clear();
        EXPECT_TRUE(prepare());
        EXPECT_FALSE(prepare());
        EXPECT_EQ(prompt.shown[0].text, "             CAUTION          \r"
                                        "                                 \r"
                                        "    For Voltage Recorders press  \r"
                                        "    the display switch until the \r"
                                        "          reading appears.       \r"
                                        "                                 \r"
                                        "           Then press OK         \r");
        EXPECT_EQ(prompt.shown[0].buttons, Buttons::OkCancel);
    }
}

TEST_F(DownloadSessionTest, TheRunSpecificationIsReadBeforeTheDialog) {
    files.contents["./runspec.txt"] = "enableErrorReport=False\r\n";
    EXPECT_TRUE(prepare());
    ASSERT_EQ(prompt.shown.size(), 1U);
    prompt.shown.clear();
    sends(header() + "\rT: 1 1000\n\x1a");
    EXPECT_TRUE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts(), (std::vector<std::string>{removeCableText(), proceed}));
}

TEST_F(DownloadSessionTest, ARunSpecificationThatCannotBeReadIsAFault) {
    files.contents["./runspec.txt"] = "";
    files.failRead = fault::permissionDenied();
    EXPECT_THROW(prepare(), Fault);
    EXPECT_FALSE(line.isOpen());
}

TEST_F(DownloadSessionTest, ACleanDownloadIsAcceptedWithoutAQuestion) {
    sends(memory());
    const auto pending = download.DownLoadProc();
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, memory());
    EXPECT_EQ(pending->id, "1");
    EXPECT_EQ(prompt.texts(), (std::vector<std::string>{removeCableText(), proceed}));
    EXPECT_EQ(panel.prompts,
              (std::vector<std::string>{"Waiting for the instrument to send its recording.",
                                        "The instrument is sending. Leave the cable in until the end.",
                                        informationReport(memory(), {.memory = 10710})}));
    EXPECT_EQ(panel.mainStatuses.front(), "COM2  in use\r\n Cancel or Escape to quit");
    EXPECT_EQ(panel.progressTexts.front(), "        Ready to start download.");
    EXPECT_EQ(panel.progressTexts.back(), "No. of characters processed = " + std::to_string(memory().size()));
    EXPECT_EQ(panel.statuses.back(), "PROCESSING DATA; WAIT");
    EXPECT_EQ(panel.log, "Total No. of characters received = " + std::to_string(memory().size()));
    expectTidy();
}

TEST_F(DownloadSessionTest, NothingIsSentToTheInstrument) {
    sends(memory());
    download.DownLoadProc();
    EXPECT_EQ(line.written, "");
}

TEST_F(DownloadSessionTest, TheJournalHoldsWhatCameAndWhatBecameOfIt) {
    sends("noise " + memory());
    download.DownLoadProc();
    const auto& reception = journal.receptions.at(0);
    EXPECT_EQ(reception.header.commPort, 2);
    EXPECT_EQ(reception.header.instrumentType, 7);
    EXPECT_EQ(reception.header.settings, "9600,N,8,1");
    EXPECT_EQ(reception.header.pcTime, toReadingTime({2024, 3, 15, 14, 5}));
    EXPECT_EQ(reception.header.command, "download");
    EXPECT_EQ(reception.parts.back(), "noise " + memory());
    EXPECT_EQ(reception.state, JournalState::accepted);
    EXPECT_EQ(reception.accepted, "noise " + memory());
}

TEST_F(DownloadSessionTest, ALowerCaseInitialIsStoredInUpperCaseAndWarnsAtTheEnd) {
    sends("k" + memory().substr(1));
    const auto pending = download.DownLoadProc();
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, memory());
    EXPECT_EQ(prompt.texts(),
              (std::vector<std::string>{removeCableText(), proceed, "    LOW INSTRUMENT BATTERY    "}));
    EXPECT_EQ(prompt.shown.back().title, "WARNING");
}

TEST_F(DownloadSessionTest, TheModelCodeIsPutIntoUpperCase) {
    sends("kwt" + memory().substr(3));
    EXPECT_EQ(download.DownLoadProc()->text, memory());
}

TEST_F(DownloadSessionTest, ErrorsAreAskedAboutAndNoDropsTheText) {
    prompt.answers = {Answer::No};
    sends(header() + "\rT: 1 2 3\n\x1a");
    EXPECT_FALSE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{errorReport({.badLines = 1, .ctrlZ = 1})});
    EXPECT_EQ(state(), JournalState::refused);
    expectTidy();
}

TEST_F(DownloadSessionTest, YesAcceptsATextWithErrors) {
    prompt.answers = {Answer::Yes};
    sends(header() + "\rT: 1 2 3\n\x1a");
    EXPECT_TRUE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts(), (std::vector<std::string>{errorReport({.badLines = 1, .ctrlZ = 1}),
                                                        removeCableText(), proceed}));
}

TEST_F(DownloadSessionTest, ATextWithoutTheMarkHasNoTerminatorButCanBeKept) {
    prompt.answers = {Answer::Yes};
    sends(header() + "\r" + lines(3) + "\x1a");
    EXPECT_TRUE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts().front(), errorReport({.ctrlZ = 0}));
}

TEST_F(DownloadSessionTest, AStalledDownloadGoesToValidation) {
    prompt.answers = {Answer::Yes};
    sends(header() + "\rT:" + lines(30));
    EXPECT_TRUE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts().front(), errorReport({.ctrlZ = 0}));
}

TEST_F(DownloadSessionTest, ATextWithoutAFamilyInitialIsBadData) {
    sends("0123456789\x1a");
    EXPECT_FALSE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"Bad data. Try downloading again."});
    EXPECT_EQ(state(), JournalState::refused);
    expectTidy();
}

TEST_F(DownloadSessionTest, BinaryNoiseEndsWithItsMessage) {
    std::string noise;
    for (int i = 0; i < 40000; ++i)
        noise += static_cast<char>(200 + i % 50);
    sends(noise + "K\x1a");
    EXPECT_FALSE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"Bad data. Try downloading again."});
}

TEST_F(DownloadSessionTest, TooManyBadCharactersAreAFaultAndTheTextWaitsInTheJournal) {
    sends(header() + "\rT:" + std::string(40000, 'x') + "\x1a");
    EXPECT_THROW(download.DownLoadProc(), Fault);
    EXPECT_EQ(state(), JournalState::received);
    expectTidy();
}

TEST_F(DownloadSessionTest, ADamagedModeLetterIsToldAndGivenByTheUser) {
    prompt.inputs = {"what?", "5 min Min/Max/Avg, stop when full"};
    sends(memory(2, header("KWT", '#')));
    const auto pending = download.DownLoadProc();
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, memory(2, header("KWT", 'k')));
    ASSERT_EQ(prompt.asked.size(), 2U);
    EXPECT_TRUE(prompt.asked[0].text.starts_with(
        "The mode letter of the recording could not be read ('#').\r\nWhat the instrument sent is kept."));
    EXPECT_EQ(prompt.asked[0].choices.size(), 12U);
    EXPECT_EQ(prompt.asked[0].choices.front(), "15 min Average, continuous");
}

TEST_F(DownloadSessionTest, WithoutAModeTheTextWaitsInTheJournal) {
    prompt.inputs = {std::nullopt};
    sends(memory(2, header("KWT", 'Z')));
    const auto pending = download.DownLoadProc();
    ASSERT_FALSE(pending);
    EXPECT_EQ(pending.error().why.text, "The mode letter of the recording could not be read ('Z').");
    EXPECT_EQ(state(), JournalState::received);
    expectTidy();
}

TEST_F(DownloadSessionTest, CharactersBehindAStrayEndMarkAreWarnedOfBeforeAnythingIsSaved) {
    // One line of ten and the mark; nine more lines follow it.
    sends(memory(1) + lines(9) + "\x1a");
    const auto pending = download.DownLoadProc();
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, memory(1));
    const std::size_t followed = lines(9).size() + 1;
    EXPECT_EQ(prompt.shown[0].text,
              std::to_string(followed) +
                  " characters followed the end mark of the recording.\r\n"
                  "It may be cut short there: download it again before you initialize the instrument.");
    EXPECT_EQ(prompt.shown[0].title, "WARNING");
    EXPECT_EQ(journal.receptions[0].parts.back(), memory(1) + lines(9) + "\x1a");
}

TEST_F(DownloadSessionTest, AFaultOfTheReceptionIsNoBadPort) {
    struct FaultyPanel : testing::RecordingPanel {
        void progressText(const std::string&) override { throw fault::overflow(); }
    } faulty;
    Session other({line, waiter, prompt, instrument, journal, gErrorCallPoint}, faulty);
    EXPECT_THROW(DownloadSession(other).DownLoadProc(), Fault);
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_FALSE(line.isOpen());
}

TEST_F(DownloadSessionTest, APortThatIsGoneAfterThePromptIsToldLikeTheProbe) {
    EXPECT_TRUE(prepare());
    line.failOpen = Fault(8005, "Port already open");
    EXPECT_FALSE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{badPortText});
    EXPECT_EQ(state(), JournalState::interrupted);
    expectTidy();
}

TEST_F(DownloadSessionTest, APortThatIsGoneAtTheFlipIsTold) {
    automatic(7);
    line.failOpen = Fault(8002, "Invalid port number");
    line.goodOpenings = 1;
    EXPECT_FALSE(download.DownLoadProc());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{badPortText});
    expectTidy();
}

TEST_F(DownloadSessionTest, TheCallPointSaysWhereAnErrorHappened) {
    line.onOpen = [this](const std::string&) {
        EXPECT_EQ(gErrorCallPoint, 315);
        waiter.after(10, [this] {
            EXPECT_EQ(gErrorCallPoint, 316);
            line.send(memory());
        });
    };
    download.DownLoadProc();
    EXPECT_EQ(gErrorCallPoint, 0);
    automatic(7);
    waiter.cancelNow();
    download.DownLoadProc();
    EXPECT_EQ(gErrorCallPoint, 317);
}

TEST_F(DownloadSessionTest, ARunningInstrumentsClockIsComparedWithTheComputers) {
    sends(memory(3, header("KWT", 'a', "03-15-24 14:08")));
    const auto pending = download.DownLoadProc();
    EXPECT_EQ(panel.prompts, (std::vector<std::string>{
                                 "Waiting for the instrument to send its recording.",
                                 "The instrument is sending. Leave the cable in until the end.",
                                 informationReport(pending->text, {.clockDifference = 3, .memory = 10710})}));
    EXPECT_EQ(journal.receptions[0].clockDifference, 3);
    EXPECT_EQ(pending->text, memory(3, header("KWT", 'a', "03-15-24 14:08")));
}

TEST_F(DownloadSessionTest, AStoppedInstrumentsTimeIsNoClock) {
    sends(memory(3, header("KWT", 'A', "03-15-24 14:08")));
    download.DownLoadProc();
    EXPECT_EQ(journal.receptions[0].clockDifference, std::nullopt);
}

TEST_F(DownloadSessionTest, AHeaderWithoutATimeAsksForTheFieldInitialization) {
    // 30 readings of 5 minutes after 03-01-24 10:00.
    prompt.inputs = {"03-01-24 10:00"};
    sends(memory(3, header("KWT", 'b', "00-00-00 00:00")));
    const auto pending = download.DownLoadProc();
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, memory(3, header("KWT", 'b', "03-01-24 12:30")));
    ASSERT_EQ(prompt.asked.size(), 1U);
    EXPECT_EQ(prompt.asked[0].text, question);
    EXPECT_EQ(journal.receptions[0].clockDifference, std::nullopt);
}

TEST_F(DownloadSessionTest, ThreeValuesOfAnIntervalCountOnce) {
    // 40 readings: Int(15 * 40 / 3) = 200 minutes after 10:00.
    prompt.inputs = {"03-01-24 10:00"};
    sends(memory(4, header("KWT", 'G', "              ")));
    EXPECT_EQ(download.DownLoadProc()->text, memory(4, header("KWT", 'G', "03-01-24 13:20")));
}

TEST_F(DownloadSessionTest, AnAnswerThatIsNoDateIsAskedAgain) {
    prompt.inputs = {"yesterday", "13-01-24 10:00", "03-01-24 25:00", "03-01-24", "03-01-24 at 10:00"};
    sends(memory(3, header("KWT", 'B', "??????????????")));
    EXPECT_EQ(download.DownLoadProc()->text, memory(3, header("KWT", 'B', "03-01-24 12:30")));
    EXPECT_EQ(prompt.asked.size(), 5U);
}

TEST_F(DownloadSessionTest, AnEmptyAnswerAbandonsTheDownloadButTheJournalKeepsIt) {
    const std::vector<std::optional<std::string>> nothings = {"", std::nullopt};
    for (const auto& nothing : nothings) {
        prompt.inputs = {nothing};
        sends(memory(3, header("KWT", 'B', "??????????????")));
        EXPECT_FALSE(download.DownLoadProc());
        EXPECT_EQ(state(), JournalState::received);
    }
}

TEST_F(DownloadSessionTest, AHeaderCutShortCanBeKeptWithADate) {
    prompt.answers = {Answer::Yes};
    prompt.inputs = {"03-01-24 10:00"};
    sends("KWTa\x1a");
    EXPECT_EQ(download.DownLoadProc()->text, "KWTa" + std::string(26, ' ') + "03-01-24 10:00\x1a");
}

TEST_F(DownloadSessionTest, ReadingsOf999AreAcceptedAs000) {
    sends(header() + "\rT: 999 2 3 4 5 6 7 8 9 10\n\x1a");
    EXPECT_EQ(download.DownLoadProc()->text, header() + "\rT: 000 2 3 4 5 6 7 8 9 10\n\x1a");
}

TEST_F(DownloadSessionTest, ACancelEndsItAtEachOf200Instants) {
    // Silence at 9,600, the answer at 115,200 in the middle of the reset, paced to 12.5 s; then nothing more.
    const std::string text = memory(20);
    for (int i = 0; i < 200; ++i) {
        testing::LinkBench bench;
        bench.automatic(7);
        bench.line.onOpen = [&](const std::string& settings) {
            if (settings == "115200,N,8,1")
                bench.line.sendPaced(bench.waiter.now() + 4000, text, 7);
        };
        const std::int64_t at = i * 63;
        bench.waiter.cancelAt(at);
        const auto pending = DownloadSession(bench.session).DownLoadProc();
        EXPECT_FALSE(bench.line.isOpen()) << at;
        EXPECT_FALSE(bench.panel.isBusy) << at;
        EXPECT_TRUE(bench.prompt.shown.empty() || pending) << at;
        const auto& reception = bench.journal.receptions.at(0);
        if (!pending) {
            EXPECT_EQ(bench.waiter.now(), at);
            EXPECT_EQ(reception.state, JournalState::interrupted);
            EXPECT_EQ(reception.parts.back(), text.substr(0, reception.parts.back().size()));
        }
    }
}

TEST_F(DownloadSessionTest, ACableThatIsPulledAtAnyByteLeavesTheBytesInTheJournal) {
    const std::string text = memory(5);
    for (std::size_t n = 0; n < text.size(); ++n) {
        testing::LinkBench bench;
        bench.instrument.instSelection = 8;
        bench.line.onOpen = [&](const std::string&) {
            bench.waiter.after(50, [&] {
                bench.line.send(text.substr(0, n));
                bench.line.lose();
            });
        };
        EXPECT_FALSE(DownloadSession(bench.session).DownLoadProc());
        EXPECT_EQ(bench.journal.receptions.at(0).parts.back(), text.substr(0, n));
        EXPECT_EQ(bench.journal.receptions.at(0).state, JournalState::interrupted);
        EXPECT_EQ(bench.prompt.texts(), std::vector<std::string>{"COM1: the line went away"});
    }
}

TEST_F(DownloadSessionTest, ASecondDownloadFollowsTheFirst) {
    sends(memory(1));
    EXPECT_TRUE(download.DownLoadProc());
    sends(memory(2));
    EXPECT_EQ(download.DownLoadProc()->text, memory(2));
}

} // namespace
} // namespace tally
