// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Aligned.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::ramp;

TEST(Aligned, ReadingsOfOneIndexAreOfOneTime) {
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

TEST(Aligned, AnIncompleteOldestTripleGoes) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(8), {.letter = 'g', .start = toReadingTime({2024, 3, 4, 0, 0})});
    const Recordings cut = aligned(recordings, *timeAxis(recordings));
    EXPECT_EQ(cut.gReadings[0], (std::vector<std::int16_t>{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(timeOf(cut.info(0), 5), timeOf(recordings.info(0), 7));
}

TEST(Aligned, WhatWasForcedMovesWithItsReadings) {
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
