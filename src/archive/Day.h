// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tally::archive {

inline constexpr int minutesPerDay = 24 * 60;

// Division by a positive number that rounds down, also below 0.
constexpr std::int64_t floorDiv(std::int64_t value, std::int64_t by) {
    return value >= 0 ? value / by : -((-value + by - 1) / by);
}

// The date of a moment: whole days since 1970-01-01.
constexpr int dayOf(ReadingTime time) {
    return static_cast<int>(floorDiv(time.minutes, minutesPerDay));
}

// 0 to 1439.
constexpr int minuteOfDay(ReadingTime time) {
    return static_cast<int>(time.minutes - std::int64_t{dayOf(time)} * minutesPerDay);
}

constexpr ReadingTime startOf(int day) {
    return {std::int64_t{day} * minutesPerDay};
}

// The year a date lies in.
int yearOf(int day);

// "YYYY-MM-DD"; nothing for what is no such date.
std::optional<int> parseDay(std::string_view text);
std::string dayText(int day);
// "YYYY-MM-DDTHH:MM".
std::string timeText(ReadingTime time);

} // namespace tally::archive
