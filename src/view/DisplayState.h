// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tally {

// What the window shows; export commands ask for it.
enum class ViewKind { none = 0, summary = 1, table = 2, powerPlot = 3, powerSummary = 4, dataPlot = 5 };

enum class Statistic { average = 1, maximum = 2, minimum = 3 };

// What the plot, the tables, the summaries and the exports share besides the recordings.
struct DisplayState {
    ViewKind viewKind = ViewKind::none;
    bool spanSelected = false; // a span is marked: the title block names it
    bool zoomRequest = false;  // the next plot narrows the range to the span
    bool spanApplied = false;  // the range was narrowed: summaries print their "Selected" block
    bool powerView = false;    // the power plot is the current view
    bool onePage = false;
    bool userScale = false; // one-shot: the next data plot uses yMinimum
    std::int16_t yMinimum = 0;
    int spanStart = 0; // absolute reading indexes of the marked span in the first file, both inclusive;
    int spanEnd = 0;   // whole triples
    ReadingTime spanStartTime;
    ReadingTime spanEndTime;
    Statistic dataDisplayed = Statistic::average;
    std::int16_t extremeMin = 0; // of the last plot, tenths
    std::int16_t extremeMax = 0;

    // Left by the last power plot.
    std::vector<float> power; // kilowatts; entry 0 is the reading at powerFirst
    int powerFirst = 0;
    std::int16_t powerExtremeMin = 0; // of that plot, tenths of amps
    std::int16_t powerExtremeMax = 0;
    std::string energyText; // "12,345 KWHR"; empty before any power plot
    std::string
        powerSource; // files, voltage, power factor and times that it was made from, for the status bar
    bool powerDrawn = false; // since the files were opened
};

} // namespace tally
