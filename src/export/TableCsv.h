// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ReadingTable.h"

namespace tally {

enum class TimeForm {
    iso,  // "YYYY-MM-DD HH:MM"
    shown // "hh:mm  MMM dd, yy", as tables show it
};

struct CsvForm {
    char separator = ','; // ",", ";" or a tab
    char decimal = '.';   // "." or ","
    TimeForm time = TimeForm::iso;
};

// The table as comma-separated values: a heading, then a row an entry, lines ended by CR LF (RFC 4180). What
// holds the separator, a quote or a line end stands in quotes.
std::string tableCsv(const Recordings& recordings, const ReadingTable& table, const CsvForm& form = {});

} // namespace tally
