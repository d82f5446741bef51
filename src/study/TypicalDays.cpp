// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/TypicalDays.h"

#include "study/Ranks.h"

#include <algorithm>
#include <span>

namespace tally::study {

namespace {

DaySlot slotOf(const Channel& channel, std::span<std::int32_t> loads) {
    DaySlot slot;
    slot.readings = loads.size();
    if (loads.empty())
        return slot;
    slot.mean = channel.mean(loads);
    slot.p10 = channel.value(percentile(loads, 10));
    slot.p90 = channel.value(percentile(loads, 90));
    const auto [minimum, maximum] = std::minmax_element(loads.begin(), loads.end());
    slot.min = channel.value(*minimum);
    slot.max = channel.value(*maximum);
    return slot;
}

// Points of one date, both ends included.
struct Day {
    DayKind kind;
    std::size_t first;
    std::size_t last;
};

std::vector<Day> daysOf(const Axis& axis, const Holidays& holidays) {
    std::vector<Day> days;
    for (std::size_t first = 0; first < axis.points;) {
        const ReadingTime time = axis.at(first);
        const auto left = static_cast<std::size_t>(minutesPerDay - 1 - minuteOfDay(time)) /
                          static_cast<std::size_t>(axis.interval);
        const std::size_t last = std::min(first + left, axis.points - 1);
        days.push_back({dayKindOf(dayOf(time), holidays), first, last});
        first = last + 1;
    }
    return days;
}

// The loads of the days of one kind, those of one slot side by side: slot by slot, `room` places each.
class SlotTable {
public:
    SlotTable(std::size_t slots, std::size_t room) : room_(room), loads_(slots * room), filled_(slots) {}

    void add(std::size_t slot, std::int32_t load) { loads_[slot * room_ + filled_[slot]++] = load; }
    std::span<std::int32_t> slot(std::size_t slot) {
        return std::span(loads_).subspan(slot * room_, filled_[slot]);
    }

private:
    std::size_t room_;
    std::vector<std::int32_t> loads_;
    std::vector<std::size_t> filled_;
};

TypicalDay typicalDay(const Channel& channel, const Axis& axis, const std::vector<Day>& days, DayKind kind) {
    const auto slots = static_cast<std::size_t>(minutesPerDay / axis.interval);
    TypicalDay typical;
    typical.days = static_cast<int>(
        std::count_if(days.begin(), days.end(), [&](const Day& day) { return day.kind == kind; }));
    SlotTable table(slots, static_cast<std::size_t>(typical.days));
    for (const Day& day : days) {
        if (day.kind != kind)
            continue;
        auto slot = static_cast<std::size_t>(minuteOfDay(axis.at(day.first)) / axis.interval);
        for (std::size_t point = day.first; point <= day.last; ++point)
            table.add(slot++, channel.loads[point]);
    }
    for (std::size_t slot = 0; slot < slots; ++slot)
        typical.slots.push_back(slotOf(channel, table.slot(slot)));
    return typical;
}

// Digits only; -1 for another text.
int numberOf(std::string_view digits) {
    int number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return -1;
        number = number * 10 + (digit - '0');
    }
    return number;
}

} // namespace

std::optional<std::int64_t> holidayOf(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const int year = numberOf(text.substr(0, 4));
    const int month = numberOf(text.substr(5, 2));
    const int day = numberOf(text.substr(8, 2));
    if (year < 0 || month < 1 || day < 1)
        return std::nullopt;
    // A date that is none comes back as another one.
    const ReadingTime midnight = toReadingTime({year, month, day, 0, 0});
    const CivilTime back = toCivil(midnight);
    if (back.year != year || back.month != month || back.day != day)
        return std::nullopt;
    return dayOf(midnight);
}

DayKind dayKindOf(std::int64_t day, const Holidays& holidays) {
    if (std::find(holidays.begin(), holidays.end(), day) != holidays.end())
        return DayKind::sunday;
    // The days are counted from a Thursday; 0 is Monday.
    const std::int64_t weekday = ((day + 3) % 7 + 7) % 7;
    return weekday == 6 ? DayKind::sunday : weekday == 5 ? DayKind::saturday : DayKind::weekday;
}

TypicalDays typicalDaysOf(const Channel& channel, const Axis& axis, const Holidays& holidays) {
    const std::vector<Day> days = daysOf(axis, holidays);
    TypicalDays typical;
    for (const DayKind kind : dayKinds)
        typical[static_cast<std::size_t>(kind)] = typicalDay(channel, axis, days, kind);
    return typical;
}

} // namespace tally::study
