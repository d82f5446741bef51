// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"

#include "archive/Day.h"
#include "core/Fault.h"

#include <algorithm>
#include <map>
#include <set>

namespace tally::archive {

namespace {

struct Year {
    Figures figures;
    std::int64_t scale = 1;
    std::set<int> days;
};

using Years = std::map<int, Year>;

std::vector<Id> idsOf(const Circuit& circuit) {
    std::vector<Id> ids;
    for (const Entry* entry : circuit)
        ids.push_back(entry->id);
    return ids;
}

// From the day figures of each recording. The years are summed in any order: only peak and mean are asked.
Years yearsApart(ArchiveStore& store, const Circuit& circuit) {
    Years years;
    store.dayFigures(idsOf(circuit), [&](Id, std::string_view bytes) {
        const auto figures = unpackDays(bytes);
        if (!figures)
            throw fault::deviceIo();
        int day = figures->firstDay;
        for (const Figures& one : figures->days) {
            Year& year = years[yearOf(day)];
            year.figures.add(one);
            year.days.insert(day++);
        }
    });
    return years;
}

// From the readings, where recordings overlap.
Years yearsMerged(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit) {
    const CircuitLoad load = circuitLoadOf(partsOf(store, tools, circuit), coarsestOf(circuit));
    Years years;
    for (std::size_t first = 0; first < load.points.size();) {
        const int number = yearOf(dayOf(load.points[first].at));
        std::size_t next = first;
        Year& year = years[number];
        for (; next < load.points.size() && yearOf(dayOf(load.points[next].at)) == number; ++next)
            year.days.insert(dayOf(load.points[next].at));
        year.figures = figuresOf(load, first, next - first).figures;
        year.scale = load.scale;
        first = next;
    }
    return years;
}

} // namespace

std::vector<YearOfLoad> growthOf(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit) {
    Circuit ordered = circuit;
    const Years years = standApart(ordered) ? yearsApart(store, ordered) : yearsMerged(store, tools, ordered);
    std::vector<YearOfLoad> growth;
    for (const auto& [number, year] : years) {
        YearOfLoad& one = growth.emplace_back();
        one.year = number;
        one.peak = static_cast<double>(year.figures.highest) / static_cast<double>(year.scale * 10);
        one.mean = meanOf(year.figures, year.scale).value_or(0);
        one.days = static_cast<int>(year.days.size());
        if (growth.size() < 2)
            continue;
        const double before = growth[growth.size() - 2].peak;
        if (before != 0)
            one.change = (one.peak - before) / before * 100;
    }
    return growth;
}

} // namespace tally::archive
