// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Report.h"

#include <algorithm>

namespace tally::study {

namespace {

// Characters of a UTF-8 text.
std::size_t length(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::vector<std::size_t> widthsOf(const ReportTable& table) {
    std::vector<std::size_t> widths;
    for (const std::string& heading : table.headings)
        widths.push_back(length(heading));
    for (const auto& row : table.rows)
        for (std::size_t i = 0; i < row.size() && i < widths.size(); ++i)
            widths[i] = std::max(widths[i], length(row[i].text));
    return widths;
}

// The first column stands left, numbers and times right.
template <typename TextAt>
std::string lineOf(const std::vector<std::size_t>& widths, TextAt textAt) {
    std::string line;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const std::string& text = textAt(i);
        const std::string blanks(widths[i] - length(text), ' ');
        line += i == 0 ? text + blanks : "  " + blanks + text;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

} // namespace

std::string textOf(const std::vector<ReportSection>& report) {
    std::string text;
    for (const ReportSection& section : report) {
        text += (text.empty() ? "" : "\n") + section.title + "\n" + std::string(length(section.title), '-') +
                "\n";
        for (const std::string& line : section.lines)
            text += line + "\n";
        const ReportTable& table = section.table;
        if (table.rows.empty())
            continue;
        const auto widths = widthsOf(table);
        text += lineOf(widths, [&](std::size_t i) -> const std::string& { return table.headings[i]; });
        for (const auto& row : table.rows)
            text += lineOf(widths, [&](std::size_t i) -> const std::string& { return row[i].text; });
    }
    return text;
}

} // namespace tally::study
