// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Load.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

FileFacts facts(char mode, int count) {
    FileFacts facts;
    facts.modeLetter = mode;
    facts.count = count;
    facts.start = toReadingTime({2024, 5, 1, 10, 0});
    return facts;
}

TEST(Load, IsTheReadingsOfAnAverageFile) {
    const Load load = loadOf(facts('b', 3), {1, 2, 3});
    EXPECT_EQ(load.interval, 5);
    EXPECT_EQ(load.average, (std::vector<std::int16_t>{1, 2, 3}));
    EXPECT_TRUE(load.maximum.empty());
    EXPECT_EQ(load.high(2), 3);
    EXPECT_EQ(load.at(2), toReadingTime({2024, 5, 1, 10, 10}));
}

TEST(Load, TakesTriplesApart) {
    // Oldest first a triple is average, maximum, minimum.
    const Load load = loadOf(facts('g', 6), {5, 9, 1, 6, 8, 2});
    EXPECT_EQ(load.average, (std::vector<std::int16_t>{5, 6}));
    EXPECT_EQ(load.maximum, (std::vector<std::int16_t>{9, 8}));
    EXPECT_EQ(load.minimum, (std::vector<std::int16_t>{1, 2}));
    EXPECT_EQ(load.at(1), toReadingTime({2024, 5, 1, 10, 15}));
}

TEST(Load, LeavesOutAnIncompleteOldestTriple) {
    const Load load = loadOf(facts('g', 5), {7, 7, 6, 8, 2});
    EXPECT_EQ(load.average, (std::vector<std::int16_t>{6}));
    // The two odd readings stand for the interval that the recording begins with.
    EXPECT_EQ(load.start, toReadingTime({2024, 5, 1, 10, 15}));
    EXPECT_EQ(loadOf(facts('g', 2), {7, 7}).points(), 0U);
}

} // namespace
} // namespace tally::archive
