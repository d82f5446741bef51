// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/TableText.h"

#include "view/FieldWriter.h"
#include "view/RunningTime.h"

#include <algorithm>
#include <array>

namespace tally {

namespace {

// The time in a field of 22 characters, and one blank.
constexpr std::string_view timeColumn = "%H:%M  %b %d, %y      ";
constexpr std::size_t timeField = 23;
constexpr std::size_t workingSize = 30000;
constexpr std::size_t maximumLineChars = timeField + 10 * FieldWriter::maximumChars + 2;

template <typename Value>
void fill(std::string& table, std::span<const Value> values, const TableLayout& layout, bool wholeNumbers,
          const TableTimes& times) {
    table.clear();
    const FieldWriter field(wholeNumbers ? layout.wholeFormat : layout.valueFormat);
    const auto perLine = static_cast<std::size_t>(layout.perLine);
    RunningTime time(timeColumn, times.start);
    // Lines are gathered in a small buffer and appended whenever it is full, so that the cost stays linear.
    std::array<char, workingSize + maximumLineChars> working;
    char* to = working.data();
    while (!values.empty()) {
        const auto inLine = std::min(perLine, values.size());
        to = std::copy_n(time.text().data(), timeField, to);
        for (const Value value : values.first(inLine))
            to = field.write(to, value);
        *to++ = '\r';
        *to++ = '\n';
        values = values.subspan(inLine);
        time.advance(times.minutesPerLine);
        if (static_cast<std::size_t>(to - working.data()) > workingSize) {
            table.append(working.data(), to);
            to = working.data();
        }
    }
    table.append(working.data(), to);
}

} // namespace

void tableText(std::string& table, std::span<const std::int16_t> tenths, const TableLayout& layout,
               bool wholeNumbers, const TableTimes& times) {
    fill(table, tenths, layout, wholeNumbers, times);
}

void tableText(std::string& table, std::span<const float> values, const TableLayout& layout,
               bool wholeNumbers, const TableTimes& times) {
    fill(table, values, layout, wholeNumbers, times);
}

} // namespace tally
