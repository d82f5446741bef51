// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"
#include "view/forms/ChartNote.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tally {

// Chart files (".chd"): a plot and its notes as JSON, described in docs/chart-file.md.
namespace ChartFile {

// No chart file is larger; ask Files::read for one byte more, so that a larger one is noticed.
constexpr std::size_t maximumBytes = 4 * 1024 * 1024;

struct Contents {
    Plot plot;
    std::vector<ChartNote> notes;
};

struct Result {
    std::optional<Contents> contents;
    std::string why; // the message when there are none
};

std::string write(const Plot& plot, const std::vector<ChartNote>& notes);
// Strict: damaged, foreign and oversized bytes give a message and nothing else. Never throws.
Result read(const std::string& bytes);

} // namespace ChartFile
} // namespace tally
