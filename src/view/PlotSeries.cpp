// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotSeries.h"

#include <algorithm>

namespace tally {

namespace {

// Division by a positive number that rounds down, also below 0.
int floorDiv(int value, int by) {
    return value >= 0 ? value / by : -((-value + by - 1) / by);
}

} // namespace

std::vector<float> seriesValues(const Recordings& recordings, int slot, const Range& range, int stride,
                                int offset) {
    const auto readings = present(recordings, slot, range);
    std::vector<float> values(static_cast<std::size_t>(range.entries() / stride));
    auto at = static_cast<std::size_t>(offset);
    for (float& value : values) {
        if (at >= readings.size())
            break;
        value = static_cast<float>(readings[at]) / 10.0F;
        at += static_cast<std::size_t>(stride);
    }
    return values;
}

std::vector<std::pair<int, int>> forcedRuns(const Recordings& recordings, int slot, const Range& range,
                                            int stride, int offset) {
    std::vector<std::pair<int, int>> runs;
    const int lastPoint = range.entries() / stride - 1;
    const int base = range.first + offset;
    for (const ForcedEdit& edit : recordings.forcedEdits.at(static_cast<std::size_t>(slot))) {
        const int end = edit.first + static_cast<int>(edit.before.size()) - 1;
        const int from = std::max(-floorDiv(base - edit.first, stride), 0);
        const int to = std::min(floorDiv(end - base, stride), lastPoint);
        if (from <= to)
            runs.emplace_back(from, to);
    }
    return mergedRuns(std::move(runs));
}

std::vector<std::pair<int, int>> mergedRuns(std::vector<std::pair<int, int>> runs) {
    std::sort(runs.begin(), runs.end());
    std::vector<std::pair<int, int>> merged;
    for (const auto& run : runs) {
        if (!merged.empty() && run.first <= merged.back().second + 1)
            merged.back().second = std::max(merged.back().second, run.second);
        else
            merged.push_back(run);
    }
    return merged;
}

} // namespace tally
