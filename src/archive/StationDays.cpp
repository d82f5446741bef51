// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"

#include "archive/Day.h"

#include <algorithm>
#include <map>

namespace tally::archive {

namespace {

struct Sum {
    ReadingTime at;
    std::int64_t value = 0;
};

// What the circuits of a station sum up to, by interval; and how many have a reading on each date.
struct Station {
    std::map<std::int64_t, Sum> slots;
    std::map<int, int> circuits;

    void add(const CircuitLoad& load, int from, int to) {
        std::optional<int> lastDay;
        for (const CircuitPoint& point : load.points) {
            const int day = dayOf(point.at);
            if (day < from || day > to)
                continue;
            Sum& sum = slots.try_emplace(point.slot, Sum{point.at, 0}).first->second;
            sum.value += point.value;
            if (day != lastDay)
                ++circuits[day];
            lastDay = day;
        }
    }
};

struct DaySum {
    StationDay shown;
    std::int64_t peak = 0;
    std::int64_t total = 0;
    std::int64_t times = 0;
};

} // namespace

std::vector<StationDay> stationDaysOf(ArchiveStore& store, const ArchiveTools& tools,
                                      const std::vector<Entry>& entries, int from, int to) {
    int interval = 1;
    const std::vector<Circuit> circuits = circuitsOf(entries, tools);
    for (const Circuit& circuit : circuits)
        interval = std::max(interval, coarsestOf(circuit));
    Station station;
    for (const Circuit& circuit : circuits)
        station.add(circuitLoadOf(partsOf(store, tools, circuit), interval, true), from, to);

    std::map<int, DaySum> days;
    for (const auto& [slot, sum] : station.slots) {
        DaySum& day = days[dayOf(sum.at)];
        if (day.times == 0 || sum.value > day.peak) {
            day.peak = sum.value;
            day.shown.peakAt = sum.at;
        }
        day.total += sum.value;
        ++day.times;
    }
    std::vector<StationDay> list;
    for (auto& [number, day] : days) {
        day.shown.day = number;
        day.shown.peak = static_cast<double>(day.peak) / static_cast<double>(fineScale * 10);
        day.shown.mean = static_cast<double>(day.total) / static_cast<double>(fineScale * 10 * day.times);
        day.shown.circuits = station.circuits[number];
        list.push_back(day.shown);
    }
    return list;
}

} // namespace tally::archive
