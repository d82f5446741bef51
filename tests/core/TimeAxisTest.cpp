// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TimeAxis.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::ramp;
using testing::Sample;

const ReadingTime twoOClock = toReadingTime({2024, 3, 15, 14, 0});

TEST(TimeAxis, OneFileIsItsOwnSpan) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    const auto axis = timeAxis(recordings);
    ASSERT_TRUE(axis);
    EXPECT_EQ(axis->start, twoOClock);
    EXPECT_EQ(axis->interval, 15);
    EXPECT_EQ(axis->points, 10);
    EXPECT_EQ(axis->stride, 1);
    EXPECT_EQ(axis->first, std::vector{0});
    EXPECT_EQ(axis->timeOf(9), twoOClock + 135);
    EXPECT_EQ(axis->end(), twoOClock + 150);
}

TEST(TimeAxis, RunsFromTheLatestFirstReadingToTheEarliestLastOne) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10)); // 14:00 to 16:15
    addFile(recordings, "b.dat", ramp(10), {.start = twoOClock + 30});
    addFile(recordings, "c.dat", ramp(8), {.start = twoOClock - 15}); // 13:45 to 15:30
    const auto axis = timeAxis(recordings);
    ASSERT_TRUE(axis);
    EXPECT_EQ(axis->start, twoOClock + 30);
    EXPECT_EQ(axis->points, 5);
    EXPECT_EQ(axis->end(), twoOClock + 105);
    EXPECT_EQ(axis->first, (std::vector{2, 0, 3}));
    EXPECT_EQ(axis->reading(2, 4), 7);
}

TEST(TimeAxis, TwoFilesMayShareOneReadingOnly) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(3));
    addFile(recordings, "b.dat", ramp(3), {.start = twoOClock + 30});
    const auto axis = timeAxis(recordings);
    ASSERT_TRUE(axis);
    EXPECT_EQ(axis->points, 1);
    EXPECT_EQ(axis->first, (std::vector{2, 0}));
}

TEST(TimeAxis, ATripleIsOneEntryAndAnIncompleteOldestOneIsLeftOut) {
    for (const int surplus : {0, 1, 2}) {
        Recordings recordings;
        addFile(recordings, "g.dat", ramp(9 + surplus), {.letter = 'g'});
        const auto axis = timeAxis(recordings);
        ASSERT_TRUE(axis);
        EXPECT_EQ(axis->points, 3);
        EXPECT_EQ(axis->stride, 3);
        // The surplus readings stand in an interval of their own before the first whole triple.
        EXPECT_EQ(axis->start, twoOClock + (surplus == 0 ? 0 : 15));
        EXPECT_EQ(axis->first, std::vector{surplus});
        EXPECT_EQ(axis->reading(0, 1, 2), surplus + 5);
    }
}

TEST(TimeAxis, TriplesOfTwoFilesStandAtTheirOwnTimes) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(9), {.letter = 'h'});
    addFile(recordings, "h.dat", ramp(9), {.letter = 'h', .start = twoOClock + 5});
    const auto axis = timeAxis(recordings);
    ASSERT_TRUE(axis);
    EXPECT_EQ(axis->interval, 5);
    EXPECT_EQ(axis->points, 2);
    EXPECT_EQ(axis->first, (std::vector{3, 0}));
}

TEST(TimeAxis, ARangeCountsInReadingsOfTheFirstFile) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    addFile(recordings, "b.dat", ramp(10), {.start = twoOClock + 30});
    const auto axis = timeAxis(recordings, Range{1, 5});
    ASSERT_TRUE(axis);
    EXPECT_EQ(axis->start, twoOClock + 30);
    EXPECT_EQ(axis->points, 4);
    EXPECT_EQ(axis->first, (std::vector{2, 0}));
}

TEST(TimeAxis, AnEmptyRangeIsOneOutsideTheCommonTime) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    addFile(recordings, "b.dat", ramp(10), {.start = twoOClock + 30});
    const auto axis = timeAxis(recordings, Range{2, 1});
    ASSERT_FALSE(axis);
    EXPECT_EQ(axis.error().text, axisNothingCommon);
}

TEST(TimeAxis, ATripleThatARangeTouchesTakesPartWhole) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(10), {.letter = 'g'}); // triples 1 to 3, 4 to 6, 7 to 9
    const auto middle = timeAxis(recordings, Range{3, 4});
    ASSERT_TRUE(middle);
    EXPECT_EQ(middle->points, 2);
    EXPECT_EQ(middle->first, std::vector{1});
    const auto last = timeAxis(recordings, Range{9, 9});
    ASSERT_TRUE(last);
    EXPECT_EQ(last->points, 1);
    EXPECT_EQ(last->first, std::vector{7});
    const auto oldest = timeAxis(recordings, Range{0, 1});
    ASSERT_TRUE(oldest);
    EXPECT_EQ(oldest->points, 1);
    EXPECT_EQ(oldest->first, std::vector{1});
    const auto surplus = timeAxis(recordings, Range{0, 0});
    ASSERT_FALSE(surplus);
    EXPECT_EQ(surplus.error().text, axisNoTriple);
}

// What is said when a second file does not fit.
std::string refusalOf(const Sample& second, int count = 10) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10));
    addFile(recordings, "b.dat", ramp(count), second);
    const auto axis = timeAxis(recordings);
    if (axis)
        return {};
    EXPECT_EQ(axis.error().subject, "b.dat");
    return axis.error().text;
}

TEST(TimeAxis, RefusesWhatDoesNotFitTheFirstFile) {
    EXPECT_EQ(refusalOf({.type = 'V'}), axisOtherUnit);
    EXPECT_EQ(refusalOf({.letter = 'b'}), axisOtherInterval);
    EXPECT_EQ(refusalOf({.letter = 'g'}), axisOtherInterval);
    EXPECT_EQ(refusalOf({.start = twoOClock + 7}), axisOffset);
    EXPECT_EQ(refusalOf({.start = twoOClock - 7}), axisOffset);
    EXPECT_EQ(refusalOf({.start = twoOClock + 150}), axisNothingCommon);
    EXPECT_EQ(refusalOf({.start = twoOClock - 150}), axisNothingCommon);
    EXPECT_EQ(refusalOf({.start = twoOClock + 135}), "");
    EXPECT_EQ(refusalOf({.letter = 'd'}), "");
}

TEST(TimeAxis, AFileWithoutAWholeTripleIsRefused) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(2), {.letter = 'g'});
    const auto axis = timeAxis(recordings);
    ASSERT_FALSE(axis);
    EXPECT_EQ(axis.error().message(), "There is no complete reading\r\ng.dat");
}

TEST(TimeAxis, SaysWhenBothFilesRun) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(2));
    addFile(recordings, "b.dat", ramp(2), {.start = twoOClock + 60});
    const auto axis = timeAxis(recordings);
    ASSERT_FALSE(axis);
    EXPECT_EQ(axis.error().advice, "It runs from 15:00  Mar 15, 24 to 15:15  Mar 15, 24, the first from "
                                   "14:00  Mar 15, 24 to 14:15  Mar 15, 24.");
}

TEST(TimeAxis, LengthsAreTextsThatSaySomething) {
    const auto length = [](std::int64_t minutes) { return startsApart("b", "a", minutes).substr(9, 10); };
    EXPECT_EQ(startsApart("b", "a", 0), "");
    EXPECT_EQ(length(90), "1 h 30 min");
    EXPECT_EQ(length(-90), "1 h 30 min");
    EXPECT_TRUE(startsApart("b", "a", 71 * 60).starts_with("b starts 71 h after a;"));
    EXPECT_TRUE(startsApart("b", "a", 72 * 60).starts_with("b starts 3 days after a;"));
    EXPECT_TRUE(startsApart("b", "a", 13LL * 365 * 1440).starts_with("b starts 4745 days after a;"));
}

TEST(TimeAxis, ReadingsOfOneIndexAreOfOneTime) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10), {.start = toReadingTime({2024, 3, 4, 0, 0})});
    addFile(recordings, "b.dat", ramp(10, 10), {.start = toReadingTime({2024, 3, 4, 0, 45})});
    const Recordings cut = aligned(recordings, *timeAxis(recordings));
    for (int slot = 0; slot < 2; ++slot) {
        EXPECT_EQ(cut.info(slot).count, 7);
        EXPECT_EQ(timeOf(cut.info(slot), 0), toReadingTime({2024, 3, 4, 0, 45}));
    }
    EXPECT_EQ(cut.gReadings[0], (std::vector<std::int16_t>{3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(cut.gReadings[1], (std::vector<std::int16_t>{0, 10, 20, 30, 40, 50, 60}));
    EXPECT_EQ(cut.info(1).path, "b.dat");
}

TEST(TimeAxis, AnIncompleteOldestTripleGoes) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(8), {.letter = 'g', .start = toReadingTime({2024, 3, 4, 0, 0})});
    const Recordings cut = aligned(recordings, *timeAxis(recordings));
    EXPECT_EQ(cut.gReadings[0], (std::vector<std::int16_t>{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(timeOf(cut.info(0), 5), timeOf(recordings.info(0), 7));
}

TEST(TimeAxis, WhatWasForcedMovesWithItsReadings) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(10), {.start = toReadingTime({2024, 3, 4, 0, 0})});
    addFile(recordings, "b.dat", ramp(4), {.start = toReadingTime({2024, 3, 4, 0, 45})});
    recordings.forcedEdits[0] = {{0, {1, 2}}, {2, {7, 8, 9}}, {6, {5, 5}}};
    const auto edits = aligned(recordings, *timeAxis(recordings)).forcedEdits[0];
    ASSERT_EQ(edits.size(), 2U);
    EXPECT_EQ(edits[0].first, 0);
    EXPECT_EQ(edits[0].before, (std::vector<std::int16_t>{8, 9}));
    EXPECT_EQ(edits[1].first, 3);
    EXPECT_EQ(edits[1].before, (std::vector<std::int16_t>{5}));
}

} // namespace
} // namespace tally
