// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/Columns.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <random>

namespace tally {
namespace {

// The plain way: every point by itself.
std::map<int, Column> plainColumns(const std::vector<float>& values, Along along, double width) {
    std::map<int, Column> columns;
    for (std::size_t k = 0; k < values.size(); ++k) {
        const int index = int(std::floor((along.origin + double(k) * along.step) / width));
        const auto [found, fresh] =
            columns.try_emplace(index, Column{index, values[k], values[k], values[k], values[k]});
        Column& column = found->second;
        column.low = std::min(column.low, values[k]);
        column.high = std::max(column.high, values[k]);
        column.last = values[k];
    }
    return columns;
}

void expectSame(const std::vector<Column>& columns, const std::map<int, Column>& plain) {
    ASSERT_EQ(columns.size(), plain.size());
    auto at = plain.begin();
    for (const Column& column : columns) {
        EXPECT_EQ(column.index, at->second.index);
        EXPECT_EQ(column.low, at->second.low);
        EXPECT_EQ(column.high, at->second.high);
        EXPECT_EQ(column.first, at->second.first);
        EXPECT_EQ(column.last, at->second.last);
        ++at;
    }
}

TEST(Columns, EveryPointIsLookedAtAtEveryStepAndOrigin) {
    std::mt19937 random(7);
    std::vector<float> values(5000);
    for (float& value : values)
        value = float(random() % 3000) / 10;
    for (const double step : {0.003, 0.0279, 0.1, 1.0 / 3, 0.999, 1.0, 2.5})
        for (const double origin : {0.0, 60.0, -731.37, 0.999999})
            for (const double width : {0.5, 1.0})
                expectSame(columnsOf(values, 0, 4999, {origin, step}, width),
                           plainColumns(values, {origin, step}, width));
}

TEST(Columns, ARangeTakesOnlyItsPoints) {
    const std::vector<float> values{1, 9, 2, 3, 8};
    const auto columns = columnsOf(values, 2, 3, {0, 0.1});
    ASSERT_EQ(columns.size(), 1U);
    EXPECT_EQ(columns[0].low, 2);
    EXPECT_EQ(columns[0].high, 3);
}

TEST(Columns, ARangeBeyondTheValuesIsCut) {
    const auto columns = columnsOf({4, 5}, -3, 99, {10, 1});
    ASSERT_EQ(columns.size(), 2U);
    EXPECT_EQ(columns[0].index, 10);
    EXPECT_EQ(columns[1].last, 5);
}

TEST(Columns, PointsThatAreNoNumbersAreLeftOut) {
    const float none = std::numeric_limits<float>::quiet_NaN();
    const float endless = std::numeric_limits<float>::infinity();
    const auto columns = columnsOf({none, 3, endless, 1, none, none}, 0, 5, {0, 0.5});
    ASSERT_EQ(columns.size(), 2U); // the third column has no number at all
    EXPECT_EQ(columns[0].first, 3);
    EXPECT_EQ(columns[1].high, 1);
}

TEST(Columns, NothingComesOfNothing) {
    EXPECT_TRUE(columnsOf({}, 0, 10, {0, 1}).empty());
    EXPECT_TRUE(columnsOf({1, 2}, 1, 0, {0, 1}).empty());
    EXPECT_TRUE(columnsOf({1, 2}, 0, 1, {0, 0}).empty());
}

} // namespace
} // namespace tally
