// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ExportDesk.h"
#include "view/ShownRange.h"

#include <string>

namespace tally {

inline constexpr std::string_view csvName = "Lotusint.csv";
inline constexpr std::string_view csvWrongMode = "only 15 min, avg mode allowed";

// Writes the current file (ginx), or its part in the applied span, as comma-separated text, eight readings a
// line. The text stays in gTable, which a refused mode leaves empty. Throws file faults; then the file that
// stood there stays, and gTable too.
ExportOutcome CsvData(const ExportDesk& desk);

// The text alone: a 15-minute average recording, whole numbers in the HIGH range.
std::string csvText(const Recordings& recordings, int slot, const ShownRange& range);

} // namespace tally
