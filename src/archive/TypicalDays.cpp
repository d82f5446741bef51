// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"

#include "archive/Day.h"

#include <algorithm>

namespace tally::archive {

namespace {

// 0 Monday to Friday, 1 Saturday, 2 Sunday; the days are counted from a Thursday.
std::size_t kindOf(int day) {
    const auto weekday = static_cast<int>(floorDiv(day + 3, 7)) * -7 + day + 3;
    return weekday == 6 ? 2 : weekday == 5 ? 1 : 0;
}

// The percentile p of k sorted values is element max(ceil(p k / 100), 1), counted from 1.
std::int64_t percentile(std::vector<std::int64_t>& values, std::size_t p) {
    const std::size_t rank = std::max<std::size_t>((p * values.size() + 99) / 100, 1);
    const auto nth = values.begin() + static_cast<std::ptrdiff_t>(rank - 1);
    std::nth_element(values.begin(), nth, values.end());
    return *nth;
}

std::optional<DaySlot> slotOf(const CircuitLoad& load, std::vector<std::int64_t>& values) {
    if (values.empty())
        return std::nullopt;
    DaySlot slot;
    std::int64_t total = 0;
    for (const std::int64_t value : values)
        total += value;
    slot.mean = static_cast<double>(total) /
                static_cast<double>(static_cast<std::int64_t>(values.size()) * load.scale * 10);
    const auto [minimum, maximum] = std::minmax_element(values.begin(), values.end());
    slot.min = load.value(*minimum);
    slot.max = load.value(*maximum);
    slot.p10 = load.value(percentile(values, 10));
    slot.p90 = load.value(percentile(values, 90));
    return slot;
}

} // namespace

TypicalDays typicalDaysOf(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit) {
    const CircuitLoad load = circuitLoadOf(partsOf(store, tools, circuit), coarsestOf(circuit));
    const auto slots = static_cast<std::size_t>(minutesPerDay / load.interval);
    TypicalDays typical;
    std::array<std::vector<std::vector<std::int64_t>>, std::tuple_size_v<TypicalDays>> values;
    values.fill(std::vector<std::vector<std::int64_t>>(slots));
    std::optional<int> lastDay;
    for (const CircuitPoint& point : load.points) {
        const int day = dayOf(point.at);
        const std::size_t kind = kindOf(day);
        if (day != lastDay)
            ++typical[kind].days;
        lastDay = day;
        values[kind][static_cast<std::size_t>(minuteOfDay(point.at) / load.interval)].push_back(point.value);
    }
    for (std::size_t kind = 0; kind < typical.size(); ++kind)
        for (auto& slot : values[kind])
            typical[kind].slots.push_back(slotOf(load, slot));
    return typical;
}

} // namespace tally::archive
