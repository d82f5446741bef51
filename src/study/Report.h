// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Study.h"

#include <optional>
#include <string>
#include <vector>

namespace tally::study {

// A text of a table, and the time that it speaks of.
struct ReportCell {
    std::string text; // UTF-8; "–" for a figure that does not exist
    std::optional<ReadingTime> at = {};
};

struct ReportTable {
    std::vector<std::string> headings;
    std::vector<std::vector<ReportCell>> rows;
};

// The parts of a report, in their order on page, paper and in text.
enum class Part { basis, demand, duration, limits, days, phases, diversity, capacity, flags };

struct ReportSection {
    Part part = Part::basis;
    std::string title;
    std::vector<std::string> lines; // above the table
    ReportTable table;              // may be empty
};

// Of the runs beyond a limit of a channel, and of the flags, so many are listed.
inline constexpr std::size_t listed = 20;

// Everything a study says, in words: loads and percentages with one decimal, factors with three, times as
// "YYYY-MM-DD HH:MM". Parts that the files or the options leave out are missing.
std::vector<ReportSection> reportOf(const Study& study);

// The report as a page of text (UTF-8, LF).
std::string textOf(const std::vector<ReportSection>& report);

std::string timeText(ReadingTime time);
std::string loadText(double value);   // "12.3"
std::string factorText(double value); // "0.123"
inline constexpr const char* noFigure = "–";

} // namespace tally::study
