// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tally {

// A text on the chart. Its upper left corner stands at x and y, parts of the frame: 0 left and top, 1 right
// and bottom, so that it keeps its place at every size.
struct ChartNote {
    double x = 0;
    double y = 0;
    std::string text; // UTF-8, LF breaks a line

    bool operator==(const ChartNote&) const = default;
};

// The part of a plot that is in sight: points and values, what the x axis says at a point, and the lines that
// were hidden.
struct Sight {
    std::pair<double, double> across;
    std::pair<double, double> up;
    std::function<std::string(int point)> timeOf;
    std::vector<int> hidden = {};
};

// Which lines of a plot are to be seen, and which one lies over the others.
struct LinesShown {
    std::vector<int> hidden; // series, in order
    int lifted = -1;         // a series, or none

    bool isHidden(int series) const {
        return std::find(hidden.begin(), hidden.end(), series) != hidden.end();
    }
    bool operator==(const LinesShown&) const = default;
};

} // namespace tally
