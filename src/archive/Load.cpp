// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Load.h"

#include "core/TimeAxis.h"

namespace tally::archive {

Load loadOf(const FileFacts& facts, const std::vector<std::int16_t>& readings) {
    Load load;
    const auto axis = timeAxis(std::vector<FileFacts>{facts});
    if (!axis)
        return load;
    load.start = axis->start;
    load.interval = axis->interval;
    if (axis->stride == 1) {
        load.average = readings;
        return load;
    }
    const auto reading = [&](int entry, int offset) {
        return readings[static_cast<std::size_t>(axis->reading(0, entry, offset))];
    };
    for (int entry = 0; entry < axis->points; ++entry) {
        load.average.push_back(reading(entry, 0));
        load.maximum.push_back(reading(entry, 1));
        load.minimum.push_back(reading(entry, 2));
    }
    return load;
}

} // namespace tally::archive
