// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <string>
#include <variant>
#include <vector>

namespace tally {

// A number with the decimals that it is shown with. One that is not finite makes an empty cell.
struct NumberCell {
    double value = 0;
    int decimals = 1;
};

// A time of day in minutes, shown as "hh:mm".
struct ClockCell {
    int minutes = 0;
};

// Empty, a text (UTF-8), a number, a date with its time, or a time of day.
using Cell = std::variant<std::monostate, std::string, NumberCell, ReadingTime, ClockCell>;

// The cells of one column from row `first` to row `last`, both inclusive, counted from 0 with the heading.
struct CellRange {
    int column = 0;
    int first = 1;
    int last = 1;
};

// A line of a chart, named by the heading of its y column; both ranges lie on the sheet that holds the chart.
struct ChartLine {
    CellRange x;
    CellRange y;
};

struct WorkbookChart {
    std::string title;
    std::string xTitle = {};
    std::string yTitle = {};
    bool xIsTime = false; // the x cells are dates
    std::vector<ChartLine> lines = {};
    int row = 1; // of its upper left corner
    int column = 1;
};

// Row 0 holds the headings, which stay in sight.
struct Sheet {
    std::string name; // at most 31 characters
    std::vector<std::vector<Cell>> rows = {};
    std::vector<double> widths = {}; // of the columns, in characters; the default for those beyond
    std::vector<WorkbookChart> charts = {};
};

// A spreadsheet as values; a writer makes the bytes of a file from it.
struct Workbook {
    std::vector<Sheet> sheets;
    ReadingTime made; // the date that the file says it was made at
};

} // namespace tally
