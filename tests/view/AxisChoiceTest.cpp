// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/AxisChoice.h"

#include "support/Shown.h"

namespace tally {
namespace {

using testing::addFile;

TEST(AxisChoice, AnAxisIsTwoNumbersTheLowerFirst) {
    for (const char* entry : {"0 to 400", "0 400", " 0;400 ", "0 to 400 A"})
        EXPECT_EQ(fixedAxisOf(entry)->fixed, (FixedAxis{0, 400})) << entry;
    EXPECT_EQ(fixedAxisOf("-5.5 to 2")->fixed, (FixedAxis{-5.5, 2}));
    EXPECT_EQ(fixedAxisOf("7000 to 7400 V")->unit, AxisUnit::volts);
    EXPECT_EQ(fixedAxisOf("0 to 400")->unit, std::nullopt);
    EXPECT_EQ(fixedAxisOf("  ")->fixed, std::nullopt);
}

TEST(AxisChoice, WhatIsNoAxisIsRefused) {
    for (const char* entry : {"400", "400 to 0", "5 5", "a to b", "0,5 to 3", "1 2 3", "1e2 to 2e2"})
        EXPECT_FALSE(fixedAxisOf(entry)) << entry;
}

TEST(AxisChoice, LimitsAreValuesWithNames) {
    const auto limits = limitsOf("400 Rating; 320.5 Summer plan;7200 V nominal;", AxisUnit::amperes);
    ASSERT_TRUE(limits);
    ASSERT_EQ(limits->size(), 3U);
    EXPECT_EQ((*limits)[0].line, (LimitLine{400, "Rating", 0}));
    EXPECT_EQ((*limits)[1].line, (LimitLine{320.5, "Summer plan", 0}));
    EXPECT_EQ((*limits)[2].line, (LimitLine{7200, "nominal", 0}));
    EXPECT_EQ((*limits)[1].unit, AxisUnit::amperes);
    EXPECT_EQ((*limits)[2].unit, AxisUnit::volts);
    EXPECT_TRUE(limitsOf(" ", AxisUnit::volts)->empty());
    EXPECT_FALSE(limitsOf("Rating 400", AxisUnit::amperes));
}

TEST(AxisChoice, ComesBackAsTheTextThatItWasEnteredAs) {
    AxisChoice choice;
    choice.fixed = FixedAxis{0, 400};
    choice.limits = {{400, "Rating", 0}, {12.5, "", 0}};
    EXPECT_EQ(fixedAxisText(choice), "0 to 400");
    EXPECT_EQ(limitsText(choice), "400 Rating; 12.5");
    EXPECT_EQ(fixedAxisText({}), "");
}

class AxisChoiceOf : public testing::ShownFiles {};

TEST_F(AxisChoiceOf, AFixedAxisHoldsForEveryPlotUntilItIsReleased) {
    addFile(recordings, "a.dat", {100, 250, 175});
    display.setFixedAxis(AxisUnit::amperes, FixedAxis{0, 400});
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(viewPlot().yMin, 0);
        EXPECT_EQ(draw().yMax, 400);
    }
    EXPECT_EQ(draw().remark, "Axis fixed at 0 to 400 A");
    display.opened(recordings, 0);
    EXPECT_EQ(viewPlot().yMax, 400);
    display.setFixedAxis(AxisUnit::amperes, std::nullopt);
    EXPECT_DOUBLE_EQ(draw().yMax, 27.5);
}

TEST_F(AxisChoiceOf, TheScaleOfOnePlotGoesBeforeTheFixedAxis) {
    addFile(recordings, "a.dat", {100, 250, 175});
    display.setFixedAxis(AxisUnit::amperes, FixedAxis{5, 400});
    viewPlot();
    display.setScale("7");
    EXPECT_EQ(draw().yMin, 7);
    EXPECT_EQ(draw().yMin, 5);
}

TEST_F(AxisChoiceOf, VoltsAndPowerHaveChoicesOfTheirOwn) {
    addFile(recordings, "a.dat", {100, 250, 175});
    display.setFixedAxis(AxisUnit::kilowatts, FixedAxis{0, 999});
    EXPECT_DOUBLE_EQ(viewPlot().yMax, 27.5);
    EXPECT_EQ(viewPower().yMax, 999);
}

TEST_F(AxisChoiceOf, TheAxisMakesRoomForALimitWhileItIsNotFixed) {
    addFile(recordings, "a.dat", {100, 250, 175});
    display.setLimits(AxisUnit::amperes, {{40, "Rating", 0}});
    const Plot plot = viewPlot();
    ASSERT_EQ(plot.limits.size(), 1U);
    EXPECT_EQ(plot.limits[0].label, "Rating 40 A");
    EXPECT_DOUBLE_EQ(plot.yMax, 42);
    EXPECT_EQ(plot.yMin, 9);
    display.setFixedAxis(AxisUnit::amperes, FixedAxis{0, 30});
    EXPECT_EQ(draw().yMax, 30);
}

// 10 to 25 A give 9 to 27.5, 110 to 120 V give 99 to 132.
TEST_F(AxisChoiceOf, AmperesAndVoltsTogetherHaveAnAxisEach) {
    addFile(recordings, "a.dat", {100, 250, 175});
    addFile(recordings, "v.dat", {1100, 1200, 1150}, {.type = 'V'});
    display.setFixedAxis(AxisUnit::volts, FixedAxis{100, 130});
    const Plot plot = viewPlot();
    EXPECT_EQ(plot.yTitle, "AMPS, VOLTS");
    EXPECT_EQ(plot.yMin, 9);
    EXPECT_DOUBLE_EQ(plot.yMax, 132);
    ASSERT_EQ(plot.axes.size(), 2U);
    EXPECT_EQ(plot.axes[0].title, "AMPS");
    EXPECT_DOUBLE_EQ(plot.axes[0].max, 27.5);
    EXPECT_EQ(plot.axes[1].title, "VOLTS");
    EXPECT_EQ(plot.axes[1].min, 100);
    EXPECT_EQ(plot.axes[1].max, 130);
    EXPECT_EQ(plot.series[0].axis, 0);
    EXPECT_EQ(plot.series[1].axis, 1);
}

TEST_F(AxisChoiceOf, FilesOfOneUnitHaveOneAxis) {
    addFile(recordings, "a.dat", {100});
    addFile(recordings, "b.dat", {100});
    EXPECT_TRUE(viewPlot().axes.empty());
}

} // namespace
} // namespace tally
