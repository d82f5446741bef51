// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ViewRollback.h"

#include "support/SampleFile.h"
#include "view/Span.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

class Rollback : public ::testing::Test {
protected:
    void SetUp() override {
        testing::addFile(recordings, "a.dat", testing::ramp(10));
        ASSERT_TRUE(applyRange(recordings, state, 2, 5));
        state.onePage = true;
    }

    Recordings recordings;
    DisplayState state;
};

TEST_F(Rollback, AViewThatWasNotDrawnLeavesRangeAndStateAsTheyWere) {
    {
        const ViewRollback rollback(recordings, state);
        startPlot(recordings, state);
        EXPECT_EQ(recordings.gdataend, 9);
    }
    EXPECT_EQ(recordings.gDatastart, 2);
    EXPECT_EQ(recordings.gdataend, 5);
    EXPECT_TRUE(recordings.gZoomFlag);
    EXPECT_TRUE(state.spanApplied);
    EXPECT_TRUE(state.onePage);
    EXPECT_EQ(state.spanStart, 2);
}

TEST_F(Rollback, AViewThatWasDrawnStays) {
    {
        ViewRollback rollback(recordings, state);
        startPlot(recordings, state);
        rollback.keep();
    }
    EXPECT_EQ(recordings.gDatastart, 0);
    EXPECT_EQ(recordings.gdataend, 9);
    EXPECT_FALSE(state.spanApplied);
    EXPECT_FALSE(state.onePage);
}

} // namespace
} // namespace tally
