// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/TimeAxis.h"

#include <string>
#include <vector>

namespace tally {

// One column of readings.
struct TableColumn {
    std::string name; // of the file, for a Min/Max/Avg recording with " min", " max" or " avg"
    int file = 0;
    int offset = 0; // of the reading in its triple
};

// Files side by side on their common time axis: a row an entry.
struct ReadingTable {
    TimeAxis axis;
    std::vector<TableColumn> columns;

    // A reading in tenths.
    std::int16_t tenths(const Recordings& recordings, int row, const TableColumn& column) const {
        return recordings.reading(column.file, axis.reading(column.file, row, column.offset));
    }
};

// The table of the open files, or of a range of the first one. Refuses what timeAxis refuses.
Expected<ReadingTable> readingTable(const Recordings& recordings, std::optional<Range> range = {});

// The names of the open files without their folders; the second of equal ones with " (2)", and so on.
std::vector<std::string> fileNames(const Recordings& recordings);

// Tenths as text with one decimal: 125 gives "12.5", -5 "-0.5".
std::string tenthsText(int tenths, char decimalSign = '.');

} // namespace tally
