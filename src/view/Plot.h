// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Phase.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tally {

// One line of a plot: point k has x = k and y = values[k], in units (amperes, volts, kilowatts).
struct PlotSeries {
    std::string legend; // UTF-8
    std::vector<float> values;
    std::vector<std::pair<int, int>> forced; // runs of points that were forced, first and last
    std::string unit;                        // "A", "V", "KW"; empty in a plot from a chart file
    Phase phase = Phase::none;
    int axis = 0;     // which of the plot's axes it is drawn on
    int present = -1; // points from 0 on that have a reading; -1 all. Those behind are drawn as 0.

    bool has(int point) const { return present < 0 || point < present; }
};

// A y axis of a plot with two.
struct UnitAxis {
    std::string title;
    double min = 0;
    double max = 10;
};

// A level that the readings are held against, such as a rating.
struct LimitLine {
    double value = 0;  // in the unit of its axis
    std::string label; // UTF-8
    int axis = 0;

    bool operator==(const LimitLine&) const = default;
};

// Everything a plot shows, worked out; a form only paints it.
struct Plot {
    std::string title;  // title block (UTF-8), lines joined by CR LF
    std::string yTitle; // "AMPS", "VOLTS", "KW"
    double yMin = 0;
    double yMax = 10;
    int points = 0;                    // x runs from 0 to points - 1
    std::array<std::string, 9> labels; // label i stands at point i * labelStep
    int labelStep = 1;
    std::vector<PlotSeries> series;
    std::vector<UnitAxis> axes; // left and right where amperes and volts are shown together; else empty
    std::vector<LimitLine> limits;
    int firstEntry = 0;      // reading index of point 0 ...
    int entriesPerPoint = 1; // ... and readings per point (3 in a Min/Max/Avg recording)
    std::string displaying;  // what "Displaying " is followed by
    std::string remark; // what is to be known about the files together, e.g. which is shorter; may be empty
    std::int16_t extremeMin = 0; // smallest and largest reading of the range, tenths; of a power plot of the
    std::int16_t extremeMax = 0; // combined currents, as PowerValues has them
};

} // namespace tally
