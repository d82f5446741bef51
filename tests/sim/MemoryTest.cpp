// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Memory.h"

#include "Bench.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using namespace sim;
using testing::noon;

TEST(Memory, HoldsWhatWasAskedFor) {
    for (const int count : {0, 1, 294, 2091})
        EXPECT_EQ(filledMemory('a', 2091, count, noon()).newestFirst(noon()).size(),
                  static_cast<std::size_t>(count));
}

TEST(Memory, RecordsOnByItself) {
    const Memory memory = filledMemory('b', 2091, 10, noon()); // 5 minutes
    EXPECT_EQ(memory.newestFirst(noon() + 4).size(), 10U);
    EXPECT_EQ(memory.newestFirst(noon() + 5).size(), 11U);
    EXPECT_EQ(memory.newestFirst(noon() + 60).size(), 22U);
}

TEST(Memory, OlderReadingsStayAsTheyAre) {
    const Memory memory = filledMemory('a', 2091, 10, noon());
    const auto before = memory.newestFirst(noon());
    const auto after = memory.newestFirst(noon() + 30);
    EXPECT_EQ(std::vector<int>(after.begin() + 2, after.end()), before);
}

TEST(Memory, ContinuousLoopKeepsTheNewestWhenItIsFull) {
    const Memory memory = filledMemory('a', 20, 20, noon());
    const auto before = memory.newestFirst(noon());
    const auto after = memory.newestFirst(noon() + 15);
    ASSERT_EQ(after.size(), 20U);
    EXPECT_EQ(std::vector<int>(after.begin() + 1, after.end()),
              std::vector<int>(before.begin(), before.end() - 1));
    EXPECT_TRUE(memory.isRunning(noon() + 15));
    EXPECT_EQ(memory.recordedUntil(noon() + 15), noon() + 15);
}

TEST(Memory, StopModeStopsWhenItIsFull) {
    const Memory memory = filledMemory('d', 20, 18, noon()); // room for two more: 30 minutes
    EXPECT_TRUE(memory.isRunning(noon() + 29));
    EXPECT_FALSE(memory.isRunning(noon() + 30));
    EXPECT_EQ(memory.recordedUntil(noon() + 500), noon() + 30);
    EXPECT_EQ(memory.newestFirst(noon() + 500).size(), 20U);
}

TEST(Memory, MinMaxAvgStoresThreeValuesAnInterval) {
    const Memory memory = filledMemory('i', 294, 294, noon());
    const auto values = memory.newestFirst(noon());
    ASSERT_EQ(values.size(), 294U);
    for (std::size_t i = 0; i < values.size(); i += 3) {
        EXPECT_LT(values[i], values[i + 2]) << i;
        EXPECT_LT(values[i + 2], values[i + 1]) << i;
    }
    EXPECT_EQ(memory.begin, noon() - 98);
}

TEST(Memory, StoppedByHandRecordsNoMore) {
    Memory memory = filledMemory('a', 2091, 10, noon());
    memory.stopped = true;
    memory.stoppedAt = noon();
    EXPECT_FALSE(memory.isRunning(noon() + 60));
    EXPECT_EQ(memory.newestFirst(noon() + 600).size(), 10U);
}

TEST(Memory, BlankModeRecordsFifteenMinutes) {
    EXPECT_EQ(filledMemory(' ', 2091, 4, noon()).begin, noon() - 60);
}

TEST(Memory, ReadingsNeverLookLikeFaults) {
    for (const int value : filledMemory('i', 42966, 42966, noon()).newestFirst(noon())) {
        ASSERT_GE(value, 0);
        ASSERT_LE(value, 500);
    }
}

TEST(Memory, GivenReadingsAreSentNewestFirst) {
    Memory memory;
    memory.readings = {1, 2, 3};
    EXPECT_EQ(memory.newestFirst(noon()), (std::vector<int>{3, 2, 1}));
}

} // namespace
} // namespace tally
