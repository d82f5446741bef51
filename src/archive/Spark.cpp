// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Spark.h"

#include <algorithm>

namespace tally::archive {

Spark sparkOf(const Load& load, std::size_t columns) {
    Spark spark;
    const std::size_t points = load.points();
    const std::size_t count = std::min(columns, points);
    for (std::size_t column = 0; column < count; ++column) {
        const std::size_t end = (column + 1) * points / count;
        Spark::Column one{INT16_MAX, INT16_MIN};
        for (std::size_t point = column * points / count; point < end; ++point) {
            one.low = std::min(one.low, load.low(point));
            one.high = std::max(one.high, load.high(point));
        }
        spark.lowest = std::min(spark.lowest, one.low);
        spark.highest = std::max(spark.highest, one.high);
        spark.columns.push_back(one);
    }
    return spark;
}

} // namespace tally::archive
