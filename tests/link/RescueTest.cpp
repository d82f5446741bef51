// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Rescue.h"

#include "LinkBench.h"
#include "core/Fault.h"
#include "link/ValidationReport.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

struct RescueTest : ::testing::Test {
    testing::MemoryJournal journal;
    testing::QueuedPrompt prompt;

    void receive(const std::string& text, JournalState state) {
        journal.begin({.commPort = 2, .instrumentType = 8, .pcTime = toReadingTime({2024, 3, 15, 14, 5})});
        journal.append(text);
        journal.end(state);
    }
};

TEST_F(RescueTest, AnInterruptedReceptionIsJudgedAndAccepted) {
    const std::string half = "k" + testing::memory(5).substr(1, 150);
    receive(half, JournalState::interrupted);
    prompt.answers = {Answer::Yes};
    const auto pending = judgeReception(journal, "1", prompt);
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, "K" + half.substr(1));
    EXPECT_EQ(pending->id, "1");
    EXPECT_EQ(journal.receptions[0].state, JournalState::accepted);
    EXPECT_EQ(journal.receptions[0].accepted, pending->text);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{errorReport({.ctrlZ = 0})});
}

TEST_F(RescueTest, NoLeavesItAsItIs) {
    receive("KWT", JournalState::interrupted);
    prompt.answers = {Answer::No};
    EXPECT_FALSE(judgeReception(journal, "1", prompt));
    EXPECT_EQ(journal.receptions[0].state, JournalState::interrupted);
}

TEST_F(RescueTest, WithoutARecordingItIsBadData) {
    receive("123", JournalState::interrupted);
    EXPECT_FALSE(judgeReception(journal, "1", prompt));
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"Bad data. Try downloading again."});
}

TEST_F(RescueTest, AHeaderWithoutATimeAsksForIt) {
    receive(testing::memory(3, testing::header("KWT", 'b', "??????????????")), JournalState::received);
    prompt.inputs = {std::nullopt};
    EXPECT_FALSE(judgeReception(journal, "1", prompt));
    prompt.inputs = {"03-01-24 10:00"};
    EXPECT_EQ(judgeReception(journal, "1", prompt)->text,
              testing::memory(3, testing::header("KWT", 'b', "03-01-24 12:30")));
}

TEST_F(RescueTest, AReceptionThatIsNotThereIsAFault) {
    EXPECT_THROW(judgeReception(journal, "7", prompt), Fault);
}

TEST_F(RescueTest, OnlyUnsavedReceptionsWaitForTheUser) {
    for (const auto state : {JournalState::interrupted, JournalState::received, JournalState::accepted,
                             JournalState::refused, JournalState::saved, JournalState::dropped})
        receive("KWT", state);
    journal.begin({});
    // The refused one holds no serial number.
    const auto entries = unsavedReceptions(journal);
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].state, JournalState::accepted);
    EXPECT_EQ(entries[1].state, JournalState::received);
    EXPECT_EQ(entries[2].state, JournalState::interrupted);
}

TEST_F(RescueTest, ARefusedReceptionIsOfferedUntilALaterOneOfItsInstrumentIsSaved) {
    receive(testing::memory(), JournalState::refused);
    EXPECT_EQ(unsavedReceptions(journal).size(), 1U);
    receive(testing::memory(), JournalState::saved);
    EXPECT_TRUE(unsavedReceptions(journal).empty());
    receive(testing::memory(), JournalState::refused);
    ASSERT_EQ(unsavedReceptions(journal).size(), 1U);
    EXPECT_EQ(unsavedReceptions(journal)[0].id, "3");
}

TEST_F(RescueTest, TheTextEndsAtItsFirstEndMarkAndWhatFollowsIsWarnedOf) {
    receive(testing::memory() + "more", JournalState::received);
    const auto pending = judgeReception(journal, "1", prompt);
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->text, testing::memory());
    EXPECT_TRUE(prompt.texts().front().starts_with("4 characters followed the end mark"));
}

TEST_F(RescueTest, AReceptionInOneLine) {
    JournalEntry entry{.header = {.commPort = 2, .pcTime = toReadingTime({2024, 3, 15, 14, 5})},
                       .state = JournalState::interrupted,
                       .bytes = 120};
    EXPECT_EQ(receptionText(entry),
              "14:05  Mar 15, 24  download on COM2, 120 characters: interrupted, not saved");
    entry.model = "KWT";
    entry.serial = "1234";
    entry.state = JournalState::saved;
    EXPECT_EQ(receptionText(entry),
              "14:05  Mar 15, 24  download on COM2, KWT Ser. 1234, 120 characters: saved");
}

} // namespace
} // namespace tally
