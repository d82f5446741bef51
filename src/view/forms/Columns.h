// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace tally {

// What a line shows within one column of a picture: its extremes and where it comes in and goes out.
struct Column {
    int index = 0; // of the column; it covers [index * width, (index + 1) * width)
    float low = 0;
    float high = 0;
    float first = 0;
    float last = 0;
};

// The places of points along x: point k stands at origin + k * step, step above 0.
struct Along {
    double origin = 0;
    double step = 1;
};

// Gathers points first to last (inclusive) into columns of the given width. Every point is looked at, so that
// no spike is lost; points that are no finite numbers are left out, and so are columns without a point.
std::vector<Column> columnsOf(const std::vector<float>& values, int first, int last, Along along,
                              double width = 1);

} // namespace tally
