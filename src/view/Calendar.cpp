// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Calendar.h"

#include "core/ModeTable.h"
#include "view/Range.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::int64_t minutesPerDay = 24 * 60;
constexpr std::int64_t daysPerWeek = 7;
constexpr std::int64_t firstMonday = 4; // days after 1970-01-01, a Thursday

std::int64_t floorDiv(std::int64_t value, std::int64_t by) {
    return value >= 0 ? value / by : -((-value + by - 1) / by);
}

// When the period begins that a time lies in.
ReadingTime beginOf(ReadingTime time, Period period) {
    if (period == Period::month) {
        const CivilTime civil = toCivil(time);
        return toReadingTime({civil.year, civil.month, 1, 0, 0});
    }
    std::int64_t day = floorDiv(time.minutes, minutesPerDay);
    if (period == Period::week)
        day = firstMonday + floorDiv(day - firstMonday, daysPerWeek) * daysPerWeek;
    return {day * minutesPerDay};
}

// When the one after it begins.
ReadingTime endOf(ReadingTime begin, Period period) {
    constexpr std::int64_t longestMonth = 31;
    if (period == Period::month)
        return beginOf(begin + longestMonth * minutesPerDay, period);
    return begin + (period == Period::week ? daysPerWeek : 1) * minutesPerDay;
}

std::optional<Range> readingsFrom(const FileFacts& info, const Range& whole, ReadingTime begin,
                                  ReadingTime end) {
    const int k = valuesPerInterval(info.modeLetter);
    const int minutes = modeRow(info.modeLetter).minutes;
    const std::int64_t origin = timeOf(info, whole.first).minutes;
    const std::int64_t intervals = whole.entries() / k;
    // The first interval that begins at the time or after it.
    const auto at = [&](ReadingTime time) {
        return std::clamp<std::int64_t>(floorDiv(time.minutes - origin + minutes - 1, minutes), 0, intervals);
    };
    const auto from = static_cast<int>(at(begin));
    const auto to = static_cast<int>(at(end));
    if (from >= to)
        return std::nullopt;
    return Range{whole.first + k * from, whole.first + k * to - 1};
}

} // namespace

std::optional<Range> periodBeside(const FileFacts& info, const Range& whole, const Range& shown,
                                  Period period, int direction) {
    const ReadingTime first = beginOf(timeOf(info, shown.first), period);
    const ReadingTime last = beginOf(timeOf(info, shown.last), period);
    if (direction > 0) {
        const ReadingTime begin = first == last ? endOf(last, period) : first;
        return readingsFrom(info, whole, begin, endOf(begin, period));
    }
    const ReadingTime begin = first == last ? beginOf(first - 1, period) : last;
    return readingsFrom(info, whole, begin, endOf(begin, period));
}

} // namespace tally
