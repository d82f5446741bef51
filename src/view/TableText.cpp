// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/TableText.h"

#include "view/FieldWriter.h"

#include <algorithm>
#include <array>

namespace tally {

namespace {

constexpr std::size_t timeField = 22; // and one blank
constexpr std::size_t workingSize = 30000;
constexpr std::size_t mostLineChars = timeField + 1 + 10 * FieldWriter::mostChars + 2;
constexpr int minutesPerDay = 24 * 60;

// The time column, counted on within a day; the date is worked out once a day.
class LineTime {
public:
    explicit LineTime(const TableTimes& times) : times_(times) {
        text_.fill(' ');
        setDate();
    }

    char* write(char* to) const { return std::copy(text_.begin(), text_.end(), to); }

    void advance() {
        times_.start = times_.start + times_.minutesPerLine;
        minuteOfDay_ += times_.minutesPerLine;
        if (minuteOfDay_ >= minutesPerDay)
            setDate();
        else
            setClock();
    }

private:
    void setDate() {
        const std::string text = screenTime(times_.start);
        std::copy(text.begin(), text.end(), text_.begin());
        const CivilTime civil = toCivil(times_.start);
        minuteOfDay_ = civil.hour * 60 + civil.minute;
    }

    void setClock() {
        const int hour = minuteOfDay_ / 60;
        const int minute = minuteOfDay_ % 60;
        text_[0] = static_cast<char>('0' + hour / 10);
        text_[1] = static_cast<char>('0' + hour % 10);
        text_[3] = static_cast<char>('0' + minute / 10);
        text_[4] = static_cast<char>('0' + minute % 10);
    }

    TableTimes times_;
    int minuteOfDay_ = 0;
    std::array<char, timeField + 1> text_{};
};

template <typename Value>
void fill(std::string& table, std::span<const Value> values, const TableLayout& layout, bool wholeNumbers,
          const TableTimes& times) {
    table.clear();
    const FieldWriter field(wholeNumbers ? layout.wholeFormat : layout.valueFormat);
    const auto perLine = static_cast<std::size_t>(layout.perLine);
    LineTime time(times);
    // Lines are gathered in a small buffer and appended whenever it is full, so that the cost stays linear.
    std::array<char, workingSize + mostLineChars> working;
    char* to = working.data();
    while (!values.empty()) {
        const auto inLine = std::min(perLine, values.size());
        to = time.write(to);
        for (const Value value : values.first(inLine))
            to = field.write(to, value);
        *to++ = '\r';
        *to++ = '\n';
        values = values.subspan(inLine);
        time.advance();
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
