// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/ExportPlace.h"

#include <string>

namespace tally {

inline constexpr std::string_view csvName = "Lotusint.csv";
inline constexpr std::string_view csvWrongMode = "only 15 min, avg mode allowed";

// Writes a range of a file as comma-separated text, eight readings a line. Throws file faults; then the file
// that stood there stays.
Expected<Exported> CsvData(const Recordings& recordings, int slot, const Range& range,
                           const ExportPlace& place);

// The text alone: a 15-minute average recording, whole numbers in the HIGH range.
std::string csvText(const Recordings& recordings, int slot, const Range& range);

} // namespace tally
