// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tally::study {

enum class DayKind { weekday, saturday, sunday };
inline constexpr std::array<DayKind, 3> dayKinds = {DayKind::weekday, DayKind::saturday, DayKind::sunday};
inline constexpr std::array<const char*, 3> dayKindNames = {"weekday", "saturday", "sunday"};

// Dates (dayOf) that count as a Sunday whatever their day of the week.
using Holidays = std::vector<std::int64_t>;

// The date that "YYYY-MM-DD" stands for; nothing for another text and for a date that is none.
std::optional<std::int64_t> holidayOf(std::string_view text);

// Monday to Friday is a weekday.
DayKind dayKindOf(std::int64_t day, const Holidays& holidays);

// What the loads at one time of day were, over the days of one kind. In the channel's unit; none without a
// reading.
struct DaySlot {
    std::size_t readings = 0;
    double mean = 0;
    double min = 0;
    double max = 0;
    double p10 = 0; // percentiles
    double p90 = 0;
};

struct TypicalDay {
    int days = 0;               // dates of the kind with at least one reading
    std::vector<DaySlot> slots; // one an interval from 00:00: slot floor(minute of the day / interval)
};

// By DayKind.
using TypicalDays = std::array<TypicalDay, 3>;

TypicalDays typicalDaysOf(const Channel& channel, const Axis& axis, const Holidays& holidays);

} // namespace tally::study
