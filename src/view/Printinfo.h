// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Range.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally {

// The summary of a file, UTF-8, lines ended by CR LF. `selected` is the applied span in readings of the first
// file, `energy` the energy of the displayed range (empty: none was worked out). Throws Subscript out of
// range when no file is open in the slot.
std::string Printinfo(const Recordings& recordings, int slot, const std::optional<Range>& selected = {},
                      const std::string& energy = {});

// The applied span of a file: its readings, and the extremes of all files shown over it.
struct SelectedSpan {
    Range range;
    Extremes extremes;
};
// The same summary with the span worked out elsewhere.
std::string summaryText(const Recordings& recordings, int slot, const std::optional<SelectedSpan>& selected,
                        const std::string& energy);

inline constexpr std::string_view noFileForSummary = "Error - No file available. Need to open a file.";
inline constexpr std::string_view noFileForPrintSummary = "Error - No file available.  Need to open a file.";

} // namespace tally
