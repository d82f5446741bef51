// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/Plot.h"

#include <cstdint>
#include <string>

namespace tally {

// What the x axis says at a point ("Mar 15 14:00"): its time, moved back to a whole multiple of the interval.
std::string axisLabel(const Plot& plot, const FileFacts& info, int point);

// Nine labels, one every Int(points / 8) points (at least 1).
void labelAxis(Plot& plot, const FileFacts& info);

// The y axis of a data plot: 10% of room above the largest reading (never below 10.0) and below the smallest;
// tenths.
void scaleAxis(Plot& plot, std::int16_t smallest, std::int16_t largest);

// Where a value of the second axis stands on the scale of the first; a value of the first stays.
double onFirstAxis(const Plot& plot, double value, int axis);
// What the second axis says at a value of the first.
double onSecondAxis(const Plot& plot, double value);

} // namespace tally
