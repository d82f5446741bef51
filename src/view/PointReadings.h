// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"

#include <string>
#include <vector>

namespace tally {

// What one line of a plot says at a point.
struct PointReading {
    std::string name;  // the legend: a file, or Max, Average, Min
    std::string value; // "12.5 A"; "no reading" where its file has none
};

inline constexpr const char* noReading = "no reading";

// One for each series, in order; empty off the data.
std::vector<PointReading> pointReadings(const Plot& plot, int point);

// The same on one line: "a.dat 12.5 A, b.dat 13.0 A".
std::string pointLine(const Plot& plot, int point);

} // namespace tally
