// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Spark.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

TEST(Spark, KeepsEveryPeakInItsColumn) {
    Load load;
    load.average = {5, 1, 900, 2, -3, 7};
    const Spark spark = sparkOf(load, 3);
    ASSERT_EQ(spark.columns.size(), 3U);
    EXPECT_EQ(spark.columns[0].low, 1);
    EXPECT_EQ(spark.columns[0].high, 5);
    EXPECT_EQ(spark.columns[1].low, 2);
    EXPECT_EQ(spark.columns[1].high, 900);
    EXPECT_EQ(spark.columns[2].low, -3);
    EXPECT_EQ(spark.lowest, -3);
    EXPECT_EQ(spark.highest, 900);
}

TEST(Spark, TakesTheExtremesOfTriples) {
    Load load;
    load.average = {5, 6};
    load.maximum = {9, 8};
    load.minimum = {1, 2};
    const Spark spark = sparkOf(load, 1);
    EXPECT_EQ(spark.columns[0].low, 1);
    EXPECT_EQ(spark.columns[0].high, 9);
}

TEST(Spark, HasNoMoreColumnsThanPoints) {
    Load load;
    EXPECT_TRUE(sparkOf(load, 100).columns.empty());
    load.average = {5, 6};
    EXPECT_EQ(sparkOf(load, 100).columns.size(), 2U);
    EXPECT_EQ(sparkOf(load, 100).lowest, 0); // a load is seen against 0
}

} // namespace
} // namespace tally::archive
