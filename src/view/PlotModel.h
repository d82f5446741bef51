// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Recordings.h"
#include "view/Display.h"
#include "view/Plot.h"

#include <string>

namespace tally {

// Works out the data plot of the open files. Throws Subscript out of range when no file is open.
Plot DisplPlot(const Recordings& recordings, const PlotRequest& request, const Clock& clock);

// Whether `displaysel` is to be asked before a plot: several Min/Max/Avg files are open.
bool needsStatistic(const Recordings& recordings);

// The pointer's read-out at a point of a plot: "hh:mm  MMM dd, yy", and the value of one series with its unit
// ("12.5 A", "2390.2 KW"). Both empty off the data.
struct ReadOut {
    std::string time;
    std::string value;
};
ReadOut readOut(const Recordings& recordings, const Plot& plot, int point, int series = 0);

} // namespace tally
