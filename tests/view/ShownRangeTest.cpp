// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ShownRange.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::ramp;

TEST(ShownRange, WholeFileOfAveragesIsEveryReading) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    const ShownRange range = wholeFile(recordings, 0);
    EXPECT_EQ(range.first, 0);
    EXPECT_EQ(range.last, 9);
    EXPECT_EQ(range.entries(), 10);
}

TEST(ShownRange, OddOldestEntriesOfTriplesAreSkipped) {
    for (const auto& [count, first] : {std::pair{9, 0}, {10, 1}, {11, 2}}) {
        Recordings recordings;
        addFile(recordings, "g.dat", ramp(count), {.letter = 'g'});
        EXPECT_EQ(wholeFile(recordings, 0).first, first);
        EXPECT_EQ(wholeFile(recordings, 0).last, count - 1);
        EXPECT_EQ(wholeFile(recordings, 0).entries(), 9);
    }
}

TEST(ShownRange, FewerThanThreeEntriesAreNoTriple) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(2), {.letter = 'g'});
    EXPECT_EQ(wholeFile(recordings, 0).entries(), 0);
    EXPECT_EQ(shownRange(recordings, {}, 0).entries(), 0);
}

TEST(ShownRange, WithoutSpanRunsFromDatastartToTheLastReading) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    recordings.gDatastart = 3;
    recordings.gdataend = 5;
    const ShownRange range = shownRange(recordings, {}, 0);
    EXPECT_EQ(range.first, 3);
    EXPECT_EQ(range.last, 9);
}

TEST(ShownRange, WithSpanNeverRunsBeyondTheLastReading) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    recordings.gDatastart = 7;
    recordings.gdataend = 42966;
    DisplayState state;
    state.spanApplied = true;
    EXPECT_EQ(shownRange(recordings, state, 0).first, 7);
    EXPECT_EQ(shownRange(recordings, state, 0).last, 9);
}

TEST(ShownRange, SpanIsCutToAShorterFile) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    addFile(recordings, "b.dat", ramp(6));
    recordings.gDatastart = 4;
    recordings.gdataend = 8;
    DisplayState state;
    state.spanApplied = true;
    EXPECT_EQ(shownRange(recordings, state, 1).first, 4);
    EXPECT_EQ(shownRange(recordings, state, 1).last, 5);
    recordings.gDatastart = 7;
    EXPECT_EQ(shownRange(recordings, state, 1).entries(), 0);
}

TEST(ShownRange, WithoutSpanALongerFileIsShownWhole) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(6));
    addFile(recordings, "b.dat", ramp(10));
    recordings.gdataend = 5;
    EXPECT_EQ(shownRange(recordings, {}, 1).last, 9);
    EXPECT_EQ(shownRange(recordings, {}, 0).last, 5);
}

TEST(ShownRange, FilesOfTriplesAreMatchedTripleByTriple) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(10), {.letter = 'g'}); // triples at 1, 4, 7
    addFile(recordings, "h.dat", ramp(9), {.letter = 'g'});  // triples at 0, 3, 6
    const ShownRange range = sameIntervals(recordings, {4, 9}, 1);
    EXPECT_EQ(range.first, 3);
    EXPECT_EQ(range.last, 8);
}

TEST(ShownRange, SameIntervalsMayRunBeyondAShorterFile) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    addFile(recordings, "b.dat", ramp(6));
    EXPECT_EQ(sameIntervals(recordings, {4, 8}, 1).last, 8);
}

TEST(ShownRange, GivenRangeBecomesWholeTriples) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(15), {.letter = 'g'});
    const auto range = wholeTriples(recordings, 0, 7, 12);
    ASSERT_TRUE(range);
    EXPECT_EQ(range->first, 6);
    EXPECT_EQ(range->last, 14);
}

TEST(ShownRange, GivenRangeOutsideTheFileOrTurnedRoundIsNone) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    EXPECT_FALSE(wholeTriples(recordings, 0, -1, 5));
    EXPECT_FALSE(wholeTriples(recordings, 0, 5, 10));
    EXPECT_FALSE(wholeTriples(recordings, 0, 5, 4));
    EXPECT_TRUE(wholeTriples(recordings, 0, 9, 9));
}

TEST(ShownRange, GivenRangeOfOddOldestEntriesAloneIsNone) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(11), {.letter = 'g'});
    EXPECT_FALSE(wholeTriples(recordings, 0, 0, 1));
    const auto range = wholeTriples(recordings, 0, 0, 2);
    ASSERT_TRUE(range);
    EXPECT_EQ(range->first, 2);
    EXPECT_EQ(range->last, 4);
}

TEST(ShownRange, TriplesShareTheirTime) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(9), {.letter = 'g'});
    const FileFacts& info = recordings.info(0);
    for (int entry = 0; entry < 9; ++entry)
        EXPECT_EQ(timeOf(info, entry).minutes, info.start.minutes + 15 * (entry / 3));
}

TEST(ShownRange, OddOldestEntriesAreAnIntervalBeforeTheFirstTriple) {
    for (const int odd : {1, 2}) {
        Recordings recordings;
        addFile(recordings, "g.dat", ramp(9 + odd), {.letter = 'g'});
        const FileFacts& info = recordings.info(0);
        for (int entry = 0; entry < odd; ++entry)
            EXPECT_EQ(timeOf(info, entry), info.start);
        for (int entry = 0; entry < 9; ++entry)
            EXPECT_EQ(timeOf(info, odd + entry), info.start + 15 * (1 + entry / 3));
    }
}

TEST(ShownRange, FileNameIsTheLastPartOfAPath) {
    EXPECT_EQ(fileNameOf("/home/x/a.dat"), "a.dat");
    EXPECT_EQ(fileNameOf("C:\\data\\a.dat"), "a.dat");
    EXPECT_EQ(fileNameOf("a.dat"), "a.dat");
}

} // namespace
} // namespace tally
