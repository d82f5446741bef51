// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PointReadings.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tally {
namespace {

Plot twoFiles() {
    Plot plot;
    plot.points = 3;
    plot.series.push_back({"a.dat", {1, 2.5F, 3}, {}, "A"});
    plot.series.push_back({"b.dat", {10, 0, 0}, {}, "V"});
    plot.series[1].present = 1;
    return plot;
}

TEST(PointReadings, NameEverySeriesWithItsValueAndUnit) {
    const auto readings = pointReadings(twoFiles(), 0);
    ASSERT_EQ(readings.size(), 2U);
    EXPECT_EQ(readings[0].name, "a.dat");
    EXPECT_EQ(readings[0].value, "1.0 A");
    EXPECT_EQ(readings[1].value, "10.0 V");
    EXPECT_EQ(pointLine(twoFiles(), 0), "a.dat 1.0 A, b.dat 10.0 V");
}

TEST(PointReadings, AFileThatEndedBeforeSaysNoReadingNotZero) {
    EXPECT_EQ(pointLine(twoFiles(), 1), "a.dat 2.5 A, b.dat no reading");
}

TEST(PointReadings, AValueThatIsNoNumberSaysNoReading) {
    Plot plot = twoFiles();
    plot.series[0].values[2] = std::nanf("");
    EXPECT_EQ(pointReadings(plot, 2)[0].value, noReading);
}

TEST(PointReadings, OffTheDataThereAreNone) {
    EXPECT_TRUE(pointReadings(twoFiles(), -1).empty());
    EXPECT_TRUE(pointReadings(twoFiles(), 3).empty());
}

} // namespace
} // namespace tally
