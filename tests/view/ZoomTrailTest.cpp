// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ZoomTrail.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(ZoomTrail, StartsAtTheWholeFileWithNowhereToGo) {
    const ZoomTrail trail;
    EXPECT_FALSE(trail.canGoBack());
    EXPECT_FALSE(trail.canGoForward());
}

TEST(ZoomTrail, GoesBackThroughWhatWasShownAndForwardAgain) {
    ZoomTrail trail;
    trail.visit(Range{2, 9});
    trail.visit(Range{4, 5});
    EXPECT_EQ(trail.back(), (Range{2, 9}));
    EXPECT_EQ(trail.back(), std::nullopt);
    EXPECT_FALSE(trail.canGoBack());
    EXPECT_EQ(trail.forward(), (Range{2, 9}));
    EXPECT_EQ(trail.forward(), (Range{4, 5}));
    EXPECT_FALSE(trail.canGoForward());
}

TEST(ZoomTrail, ANewRangeEndsTheWayForward) {
    ZoomTrail trail;
    trail.visit(Range{2, 9});
    trail.back();
    trail.visit(Range{1, 3});
    EXPECT_FALSE(trail.canGoForward());
    EXPECT_EQ(trail.back(), std::nullopt);
}

TEST(ZoomTrail, TheSameRangeAgainIsNoStep) {
    ZoomTrail trail;
    trail.visit(std::nullopt);
    trail.visit(Range{2, 9});
    trail.visit(Range{2, 9});
    trail.back();
    EXPECT_FALSE(trail.canGoBack());
}

TEST(ZoomTrail, RemembersAHundredRanges) {
    ZoomTrail trail;
    for (int i = 1; i <= 150; ++i)
        trail.visit(Range{i, 200});
    int steps = 0;
    for (; trail.canGoBack(); ++steps)
        trail.back();
    EXPECT_EQ(steps, 99);
}

} // namespace
} // namespace tally
