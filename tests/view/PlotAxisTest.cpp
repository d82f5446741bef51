// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotAxis.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

FileFacts facts(char letter, ReadingTime start) {
    FileFacts info;
    info.modeLetter = letter;
    info.start = start;
    info.count = 900;
    return info;
}

TEST(PlotAxis, AllReadingsFiveRunFromFourToTen) {
    Plot plot;
    scaleAxis(plot, 50, 50);
    EXPECT_EQ(plot.yMin, 4);
    EXPECT_EQ(plot.yMax, 10);
}

TEST(PlotAxis, LeavesTenPercentOfRoom) {
    Plot plot;
    scaleAxis(plot, 1000, 2000);
    EXPECT_EQ(plot.yMin, 90);
    EXPECT_DOUBLE_EQ(plot.yMax, 220);
}

TEST(PlotAxis, MinimumIsRoundedDown) {
    Plot plot;
    scaleAxis(plot, 119, 900); // 11.9 x 0.9 = 10.71
    EXPECT_EQ(plot.yMin, 10);
    scaleAxis(plot, -15, 900); // -1.5 x 0.9 = -1.35
    EXPECT_EQ(plot.yMin, -2);
}

TEST(PlotAxis, MaximumIsNeverBelowTen) {
    Plot plot;
    scaleAxis(plot, 0, 90); // 9.9
    EXPECT_EQ(plot.yMax, 10);
    scaleAxis(plot, 0, 91); // 10.01
    EXPECT_DOUBLE_EQ(plot.yMax, 10.01);
}

TEST(PlotAxis, FewerThanEightPointsStillHaveNineLabels) {
    Plot plot;
    plot.points = 5;
    labelAxis(plot, facts('a', toReadingTime({2024, 3, 15, 14, 0})));
    EXPECT_EQ(plot.labelStep, 1);
    EXPECT_EQ(plot.labels[0], "Mar 15 14:00");
    EXPECT_EQ(plot.labels[1], "Mar 15 14:15");
    EXPECT_EQ(plot.labels[8], "Mar 15 16:00");
}

TEST(PlotAxis, LabelsStandEveryEighthOfThePoints) {
    Plot plot;
    plot.points = 103;
    labelAxis(plot, facts('b', toReadingTime({2024, 12, 31, 23, 0})));
    EXPECT_EQ(plot.labelStep, 12);
    EXPECT_EQ(plot.labels[0], "Dec 31 23:00");
    EXPECT_EQ(plot.labels[1], "Jan 01 00:00");
    EXPECT_EQ(plot.labels[8], "Jan 01 07:00");
}

TEST(PlotAxis, StartIsMovedBackToAMultipleOfTheInterval) {
    Plot plot;
    plot.points = 16;
    labelAxis(plot, facts('a', toReadingTime({2024, 3, 15, 14, 7})));
    EXPECT_EQ(plot.labels[0], "Mar 15 14:00");
    EXPECT_EQ(plot.labels[1], "Mar 15 14:30");
    labelAxis(plot, facts('e', toReadingTime({2024, 3, 15, 14, 59})));
    EXPECT_EQ(plot.labels[0], "Mar 15 14:55");
    labelAxis(plot, facts('f', toReadingTime({2024, 3, 15, 14, 59})));
    EXPECT_EQ(plot.labels[0], "Mar 15 14:59");
}

TEST(PlotAxis, EveryPointHasTheLabelThatTheNineHave) {
    Plot plot;
    plot.points = 80;
    plot.firstEntry = 2;
    plot.entriesPerPoint = 3;
    FileFacts info = facts('j', toReadingTime({2024, 3, 15, 14, 7}));
    info.count = 242; // two odd entries before the first whole triple
    labelAxis(plot, info);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(axisLabel(plot, info, 10 * i), plot.labels[static_cast<std::size_t>(i)]) << i;
    // The first triple ends with reading 4, in the interval after reading 0.
    EXPECT_EQ(axisLabel(plot, info, 0), "Mar 15 14:15");
    EXPECT_EQ(axisLabel(plot, info, 1), "Mar 15 14:30");
    EXPECT_EQ(axisLabel(plot, info, 9), "Mar 15 16:30");
}

TEST(PlotAxis, LabelsBeginAtTheFirstShownEntry) {
    Plot plot;
    plot.points = 4;
    plot.firstEntry = 6;
    plot.entriesPerPoint = 3;
    labelAxis(plot, facts('g', toReadingTime({2024, 3, 15, 14, 0})));
    EXPECT_EQ(plot.labels[0], "Mar 15 14:30");
    EXPECT_EQ(plot.labels[3], "Mar 15 15:15");
}

} // namespace
} // namespace tally
