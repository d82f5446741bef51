// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PointReadings.h"

#include "core/Numbers.h"

#include <cmath>

namespace tally {

namespace {

std::string valueAt(const PlotSeries& series, int point) {
    const auto at = static_cast<std::size_t>(point);
    if (!series.has(point) || at >= series.values.size() || !std::isfinite(series.values[at]))
        return noReading;
    const std::string value = Format(series.values[at], "##0.0");
    return series.unit.empty() ? value : value + " " + series.unit;
}

} // namespace

std::vector<PointReading> pointReadings(const Plot& plot, int point) {
    std::vector<PointReading> readings;
    if (point < 0 || point >= plot.points)
        return readings;
    for (const PlotSeries& series : plot.series)
        readings.push_back({series.legend, valueAt(series, point)});
    return readings;
}

std::string pointLine(const Plot& plot, int point) {
    std::string line;
    for (const PointReading& reading : pointReadings(plot, point))
        line += (line.empty() ? "" : ", ") + (reading.name.empty() ? "" : reading.name + " ") + reading.value;
    return line;
}

} // namespace tally
