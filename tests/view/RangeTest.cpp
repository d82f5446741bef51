// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Range.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::ramp;

TEST(RangeOf, WholeFileOfAveragesIsEveryReading) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    const Range range = wholeFile(recordings, 0);
    EXPECT_EQ(range.first, 0);
    EXPECT_EQ(range.last, 9);
    EXPECT_EQ(range.entries(), 10);
}

TEST(RangeOf, OddOldestEntriesOfTriplesAreSkipped) {
    for (const auto& [count, first] : {std::pair{9, 0}, {10, 1}, {11, 2}}) {
        Recordings recordings;
        addFile(recordings, "g.dat", ramp(count), {.letter = 'g'});
        EXPECT_EQ(wholeFile(recordings, 0).first, first);
        EXPECT_EQ(wholeFile(recordings, 0).last, count - 1);
        EXPECT_EQ(wholeFile(recordings, 0).entries(), 9);
    }
}

TEST(RangeOf, FewerThanThreeEntriesAreNoTriple) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(2), {.letter = 'g'});
    EXPECT_EQ(wholeFile(recordings, 0).entries(), 0);
}

TEST(RangeOf, FilesOfTriplesAreMatchedTripleByTriple) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(10), {.letter = 'g'}); // triples at 1, 4, 7
    addFile(recordings, "h.dat", ramp(9), {.letter = 'g'});  // triples at 0, 3, 6
    const Range range = sameIntervals(recordings, {4, 9}, 1);
    EXPECT_EQ(range.first, 3);
    EXPECT_EQ(range.last, 8);
}

TEST(RangeOf, SameIntervalsMayRunBeyondAShorterFile) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    addFile(recordings, "b.dat", ramp(6));
    EXPECT_EQ(sameIntervals(recordings, {4, 8}, 1).last, 8);
}

TEST(RangeOf, GivenRangeBecomesWholeTriples) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(15), {.letter = 'g'});
    const auto range = wholeTriples(recordings, 0, 7, 12);
    ASSERT_TRUE(range);
    EXPECT_EQ(range->first, 6);
    EXPECT_EQ(range->last, 14);
}

TEST(RangeOf, GivenRangeOutsideTheFileOrTurnedRoundIsNone) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    EXPECT_FALSE(wholeTriples(recordings, 0, -1, 5));
    EXPECT_FALSE(wholeTriples(recordings, 0, 5, 10));
    EXPECT_FALSE(wholeTriples(recordings, 0, 5, 4));
    EXPECT_TRUE(wholeTriples(recordings, 0, 9, 9));
}

TEST(RangeOf, GivenRangeOfOddOldestEntriesAloneIsNone) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(11), {.letter = 'g'});
    EXPECT_FALSE(wholeTriples(recordings, 0, 0, 1));
    const auto range = wholeTriples(recordings, 0, 0, 2);
    ASSERT_TRUE(range);
    EXPECT_EQ(range->first, 2);
    EXPECT_EQ(range->last, 4);
}

TEST(RangeOf, TriplesShareTheirTime) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(9), {.letter = 'g'});
    const FileFacts& info = recordings.info(0);
    for (int entry = 0; entry < 9; ++entry)
        EXPECT_EQ(timeOf(info, entry).minutes, info.start.minutes + 15 * (entry / 3));
}

TEST(RangeOf, OddOldestEntriesAreAnIntervalBeforeTheFirstTriple) {
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

TEST(RangeOf, ExtremesCountMissingReadingsAsZero) {
    Recordings recordings;
    addFile(recordings, "a.dat", {50, 60, 70});
    addFile(recordings, "b.dat", {40, 90});
    EXPECT_EQ(extremesOf(recordings, {0, 1}).smallest, 40);
    EXPECT_EQ(extremesOf(recordings, {0, 1}).largest, 90);
    EXPECT_EQ(extremesOf(recordings, {1, 2}).smallest, 0);
    EXPECT_EQ(extremesOf(recordings, {2, 2}).largest, 70);
}

} // namespace
} // namespace tally
