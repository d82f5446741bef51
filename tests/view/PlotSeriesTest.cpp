// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotSeries.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using Runs = std::vector<std::pair<int, int>>;

Recordings rampOf(int count) {
    Recordings recordings;
    testing::addFile(recordings, "a.dat", testing::ramp(count));
    return recordings;
}

void force(Recordings& recordings, int first, int count) {
    recordings.forcedEdits[0].push_back({first, testing::constant(count, 0)});
}

TEST(PlotSeries, ValuesAreInUnits) {
    EXPECT_EQ(seriesValues(rampOf(5), 0, {1, 3}, 1, 0), (std::vector<float>{0.1F, 0.2F, 0.3F}));
}

TEST(PlotSeries, EveryThirdReadingFromItsPlaceInTheTriple) {
    EXPECT_EQ(seriesValues(rampOf(9), 0, {3, 8}, 3, 2), (std::vector<float>{0.5F, 0.8F}));
}

TEST(PlotSeries, MissingReadingsCountAsZero) {
    EXPECT_EQ(seriesValues(rampOf(3), 0, {1, 4}, 1, 0), (std::vector<float>{0.1F, 0.2F, 0.0F, 0.0F}));
    EXPECT_EQ(seriesValues(rampOf(3), 0, {5, 6}, 1, 0), (std::vector<float>{0.0F, 0.0F}));
    EXPECT_EQ(present(rampOf(3), 0, {5, 6}).size(), 0U);
}

TEST(PlotSeries, ForcedReadingsAreRunsOfPoints) {
    Recordings recordings = rampOf(20);
    force(recordings, 5, 4);
    EXPECT_EQ(forcedRuns(recordings, 0, {0, 19}, 1, 0), (Runs{{5, 8}}));
    EXPECT_EQ(forcedRuns(recordings, 0, {6, 7}, 1, 0), (Runs{{0, 1}}));
    EXPECT_EQ(forcedRuns(recordings, 0, {9, 19}, 1, 0), Runs{});
    EXPECT_EQ(forcedRuns(recordings, 0, {0, 4}, 1, 0), Runs{});
}

TEST(PlotSeries, ForcedRunsOfATripleFollowTheStatistic) {
    Recordings recordings = rampOf(30);
    force(recordings, 7, 4); // entries 7 to 10: maximum and minimum of point 2, average and maximum of 3
    EXPECT_EQ(forcedRuns(recordings, 0, {0, 29}, 3, 0), (Runs{{3, 3}}));
    EXPECT_EQ(forcedRuns(recordings, 0, {0, 29}, 3, 1), (Runs{{2, 3}}));
    EXPECT_EQ(forcedRuns(recordings, 0, {0, 29}, 3, 2), (Runs{{2, 2}}));
    EXPECT_EQ(forcedRuns(recordings, 0, {9, 29}, 3, 1), (Runs{{0, 0}}));
}

TEST(PlotSeries, RunsThatTouchBecomeOne) {
    Recordings recordings = rampOf(20);
    force(recordings, 8, 3);
    force(recordings, 2, 2);
    force(recordings, 4, 2);
    force(recordings, 9, 1);
    EXPECT_EQ(forcedRuns(recordings, 0, {0, 19}, 1, 0), (Runs{{2, 5}, {8, 10}}));
}

} // namespace
} // namespace tally
