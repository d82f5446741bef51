// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/AddRun.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

TEST(AddRun, SaysHowFarItIs) {
    AddProgress progress;
    progress.files = 4000;
    EXPECT_EQ(progressText(progress), "Looking for recordings: 4,000 found");
    progress.looking = false;
    progress.count.added = 1150;
    progress.count.already = 48;
    EXPECT_EQ(progressText(progress), "1,198 of 4,000: 1,150 added, 48 there already");
    progress.count.failures = {{"/a.dat", "File not found"}, {"/b.dat", "File not found"}};
    EXPECT_EQ(progressText(progress), "1,200 of 4,000: 1,150 added, 48 there already, 2 failed");
}

TEST(AddRun, SaysWhatCameOfIt) {
    AddOutcome outcome;
    outcome.progress.count.added = 1234567;
    EXPECT_EQ(outcomeText(outcome), "1,234,567 added, 0 there already");
    outcome.stopped = true;
    for (int number = 1; number <= 7; ++number)
        outcome.progress.count.failures.push_back({"/" + std::to_string(number), "bad"});
    EXPECT_EQ(outcomeText(outcome), "Stopped: 1,234,567 added, 0 there already, 7 failed\n/1: bad\n/2: bad\n"
                                    "/3: bad\n/4: bad\n/5: bad\nand 2 more");
    AddOutcome failed;
    failed.fault = "The disk is full";
    EXPECT_EQ(outcomeText(failed), "The disk is full\n0 added, 0 there already");
}

} // namespace
} // namespace tally::archive
