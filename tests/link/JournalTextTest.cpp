// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/JournalText.h"

#include "LinkBench.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

const JournalHeader header = {.commPort = 5,
                              .instrumentType = 8,
                              .maxSamples = 42966,
                              .settings = "115200,N,8,1",
                              .pcTime = toReadingTime({2024, 3, 15, 14, 5}),
                              .command = "recover"};

TEST(JournalText, WhatIsWrittenIsReadAgain) {
    const JournalRecord record =
        readJournal(journalStart(header) + journalPart(417, "9600,N,8,1") + journalClock(-12) +
                    journalState(JournalState::received) + journalState(JournalState::accepted));
    EXPECT_EQ(record.header.commPort, 5);
    EXPECT_EQ(record.header.instrumentType, 8);
    EXPECT_EQ(record.header.maxSamples, 42966);
    EXPECT_EQ(record.header.settings, "9600,N,8,1");
    EXPECT_EQ(record.header.pcTime, header.pcTime);
    EXPECT_EQ(record.header.command, "recover");
    EXPECT_EQ(record.partStart, 417U);
    EXPECT_EQ(record.clockDifference, -12);
    EXPECT_EQ(record.state, JournalState::accepted);
}

TEST(JournalText, TheLinesOfAStart) {
    EXPECT_EQ(journalStart(header),
              "command recover\nport 5\nsamples 42966\ntype 8\ntime 03-15-24 14:05\npart 0 115200,N,8,1\n");
    JournalHeader byPath = header;
    byPath.commPort = 0;
    byPath.device = "/dev/pts/7";
    EXPECT_EQ(journalStart(byPath), "command recover\nport 0\ndevice /dev/pts/7\nsamples 42966\ntype 8\n"
                                    "time 03-15-24 14:05\npart 0 115200,N,8,1\n");
    EXPECT_EQ(readJournal(journalStart(byPath)).header.device, "/dev/pts/7");
}

TEST(JournalText, ALineCutShortDoesNotCount) {
    EXPECT_EQ(readJournal("state received\nstate acc").state, JournalState::received);
    EXPECT_EQ(readJournal("state received").state, std::nullopt);
}

TEST(JournalText, WhatWasSavedOrDroppedIsNotAcceptedAfterwards) {
    EXPECT_EQ(readJournal("state saved\nstate accepted\n").state, JournalState::saved);
    EXPECT_EQ(readJournal("state dropped\nstate accepted\n").state, JournalState::dropped);
    EXPECT_EQ(readJournal("state dropped\nstate saved\n").state, JournalState::saved);
    EXPECT_EQ(readJournal("state refused\nstate accepted\n").state, JournalState::accepted);
}

TEST(JournalText, UnknownAndDamagedLinesAreLeftOut) {
    const JournalRecord record =
        readJournal("port x\npart 12\npart y z\nclock 1x\nstate lost\n\n nonsense\n");
    EXPECT_EQ(record.header.commPort, 1);
    EXPECT_EQ(record.partStart, 0U);
    EXPECT_EQ(record.clockDifference, std::nullopt);
    EXPECT_EQ(record.state, std::nullopt);
}

TEST(JournalText, EveryStateButReceivingIsWritten) {
    for (const auto state : {JournalState::interrupted, JournalState::received, JournalState::accepted,
                             JournalState::refused, JournalState::saved, JournalState::dropped})
        EXPECT_EQ(readJournal(journalState(state)).state, state);
    EXPECT_EQ(journalState(JournalState::receiving), "");
}

TEST(JournalText, ModelAndSerialNumberComeFromTheCharacters) {
    JournalEntry entry;
    describe(entry, "??" + testing::memory());
    EXPECT_EQ(entry.model, "KWT");
    EXPECT_EQ(entry.serial, "1234");
    JournalEntry none;
    describe(none, "12345");
    EXPECT_EQ(none.model, "");
    JournalEntry cut;
    describe(cut, "kw");
    EXPECT_EQ(cut.model, "KW");
    EXPECT_EQ(cut.serial, "");
}

} // namespace
} // namespace tally
