// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Load.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tally::archive {

// A recording as a small picture: for each column its lowest and highest value, in tenths, so that no peak is
// lost.
struct Spark {
    struct Column {
        std::int16_t low = 0;
        std::int16_t high = 0;
    };
    std::vector<Column> columns;
    std::int16_t lowest = 0; // of all, never above 0
    std::int16_t highest = 0;
};

// At most `columns` columns, one a point when there are fewer.
Spark sparkOf(const Load& load, std::size_t columns);

} // namespace tally::archive
