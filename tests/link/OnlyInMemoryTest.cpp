// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/OnlyInMemory.h"

#include "support/MemoryJournal.h"
#include "support/QueuedPrompt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tally {
namespace {

using ::testing::HasSubstr;

struct OnlyInMemory : ::testing::Test {
    testing::MemoryJournal journal;
    testing::QueuedPrompt prompt;
    PendingDownload pending = {"KWTa 1234", "1"};
    int saves = 0;
    bool saved = true;

    void SetUp() override {
        journal.begin({});
        journal.append(pending.text);
        journal.accepted(pending.text);
    }
    Fate fate() {
        return fateOf(pending, journal, prompt, [this] {
            ++saves;
            return saved;
        });
    }
};

TEST_F(OnlyInMemory, WhatTheJournalKeepsIsNotAskedAbout) {
    EXPECT_EQ(fate(), Fate::kept);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(OnlyInMemory, WhatTheJournalCouldNotKeepIsOfferedWithTheCause) {
    journal.trouble = "The journal cannot be written: No space left on device.";
    prompt.answers = {Answer::Yes};
    EXPECT_EQ(fate(), Fate::saved);
    EXPECT_EQ(saves, 1);
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_THAT(prompt.shown[0].text, HasSubstr("No space left on device"));
    EXPECT_EQ(prompt.shown[0].defaultAnswer, Answer::Yes);
}

TEST_F(OnlyInMemory, ADownloadThatNoJournalKnowsIsAskedAbout) {
    pending.id.clear();
    prompt.answers = {Answer::Yes};
    EXPECT_EQ(fate(), Fate::saved);
}

TEST_F(OnlyInMemory, AnUnfinishedSaveLeavesItWhereItIs) {
    pending.id.clear();
    saved = false;
    prompt.answers = {Answer::Yes};
    EXPECT_EQ(fate(), Fate::stays);
}

TEST_F(OnlyInMemory, GivingItUpIsAskedTwiceAndTheCautiousAnswerKeepsIt) {
    pending.id.clear();
    prompt.answers = {Answer::No, Answer::No};
    EXPECT_EQ(fate(), Fate::stays);
    EXPECT_EQ(prompt.shown.at(1).defaultAnswer, Answer::No);
    prompt.answers = {Answer::No, Answer::Yes};
    EXPECT_EQ(fate(), Fate::dropped);
    EXPECT_EQ(saves, 0);
}

} // namespace
} // namespace tally
