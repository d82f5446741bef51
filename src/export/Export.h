// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ExportDesk.h"

#include <string>
#include <string_view>

namespace tally {

inline constexpr std::string_view shortLineError =
    "Software Error #2 in Export.bas. Line in gTable$ too short.";

// Writes gTable beside the data file of the current slot (ginx), with the extension "prn": the title line and
// the table as they stand or, with `onePerLine`, one interval a line. Resets the view kind. Throws file
// faults and, for a line that begins with no time, Type mismatch; then nothing has changed.
ExportOutcome Export(const ExportDesk& desk, const std::string& title, bool onePerLine);

// The export commands of the menu. `title` is the heading of the table that is shown (bytes).
// With the data plot shown the CSV export, with a table shown the table as text.
ExportOutcome MnuItemexpdatacsv_Click(const ExportDesk& desk, const std::string& title);
// With a table shown one interval a line.
ExportOutcome mnuItemexpdata1perLine_Click(const ExportDesk& desk, const std::string& title);

// A table with one interval a line.
struct PerLineText {
    std::string text;
    bool lineTooShort = false; // the text ends before the line that was
};
PerLineText onePerLineText(std::string_view table, char modeLetter);

} // namespace tally
