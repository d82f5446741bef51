// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ExportPlace.h"
#include "view/Display.h"

#include <string>
#include <string_view>

namespace tally {

inline constexpr std::string_view shortLineError =
    "Software Error #2 in Export.bas. Line in gTable$ too short.";

// Writes the table of a file beside it, with the extension "prn": heading and table as they stand or, with
// `onePerLine`, one interval a line. A line that is too short refuses it; what was converted before stands in
// the file then. Throws file faults and, for a line that begins with no time, Type mismatch; then nothing has
// changed.
Expected<Exported> Export(const Recordings& recordings, int slot, const Table& table, bool onePerLine,
                          Files& files);

// A table with one interval a line.
struct PerLineText {
    std::string text;
    bool lineTooShort = false; // the text ends before the line that was
};
PerLineText onePerLineText(std::string_view table, char modeLetter);

} // namespace tally
