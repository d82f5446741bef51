// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/Columns.h"

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

// Points from up to (not including) to; false when none of them is finite.
bool gather(const std::vector<float>& values, int from, int to, Column& column) {
    int at = from;
    while (at < to && !std::isfinite(values[std::size_t(at)]))
        ++at;
    if (at == to)
        return false;
    column.first = column.last = column.low = column.high = values[std::size_t(at)];
    for (++at; at < to; ++at) {
        const float value = values[std::size_t(at)];
        if (!std::isfinite(value))
            continue;
        column.low = std::min(column.low, value);
        column.high = std::max(column.high, value);
        column.last = value;
    }
    return true;
}

} // namespace

std::vector<Column> columnsOf(const std::vector<float>& values, int first, int last, Along along,
                              double width) {
    std::vector<Column> columns;
    first = std::max(first, 0);
    last = std::min(last, int(values.size()) - 1);
    if (first > last || !(along.step > 0) || !(width > 0))
        return columns;
    const auto columnOf = [&](int point) {
        return int(std::floor((along.origin + point * along.step) / width));
    };
    const double perColumn = width / along.step;
    columns.reserve(std::size_t(std::min(columnOf(last) - columnOf(first), last - first)) + 1);
    for (int from = first; from <= last;) {
        Column column;
        column.index = columnOf(from);
        // The guess is right but for rounding; walk to the true border.
        const double border = (column.index + 1) * perColumn - along.origin / along.step;
        int to = int(std::clamp(std::ceil(border), double(from) + 1, double(last) + 1));
        while (to > from + 1 && columnOf(to - 1) > column.index)
            --to;
        while (to <= last && columnOf(to) == column.index)
            ++to;
        if (gather(values, from, to, column))
            columns.push_back(column);
        from = to;
    }
    return columns;
}

} // namespace tally
