// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Display.h"
#include "view/Power.h"

#include <optional>
#include <string>
#include <vector>

namespace tally {

// What one line of a plot does over a span. A figure that no reading stands for is absent, never 0.
struct SpanLine {
    struct Extreme {
        double value = 0;
        ReadingTime at; // the earliest of equal ones
    };

    std::string name; // the file, or Max, Average, Min, or "Power"
    std::string unit; // "A", "V", "KW"
    int readings = 0; // of the span that the file has
    std::optional<double> first;
    std::optional<double> last;
    std::optional<double> difference; // last less first
    std::optional<Extreme> max;
    std::optional<Extreme> min;
    std::optional<double> mean;
    std::optional<double> loadFactor; // mean / max of averages; none for volts or a max of 0
};

struct SpanFigures {
    ReadingTime from; // of the first reading ...
    ReadingTime to;   // ... and of the last
    int points = 0;
    std::vector<SpanLine> lines;
    std::string energy;               // as the power summary says it; empty without power
    std::vector<std::string> remarks; // what the figures do not rest on
};

// The figures of a range of the first file (whole triples), of the lines that a data plot with this statistic
// shows, from the readings as they are.
SpanFigures spanFigures(const Recordings& recordings, const Range& range, Statistic statistic);
// Those of a power plot.
SpanFigures spanFigures(const Recordings& recordings, const Power& power);

// As rows of a table: the names, then a figure a row; "-" for one that does not exist.
std::vector<std::vector<std::string>> spanRows(const SpanFigures& figures);
// "12:00  Mar 15, 24 to 14:00  Mar 15, 24 (2 h, 9 readings)".
std::string spanTitle(const SpanFigures& figures);
// Title, rows parted by tabs, remarks; lines ended by CR LF.
std::string spanText(const SpanFigures& figures);

} // namespace tally
