// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"

#include "archive/Day.h"
#include "core/Fault.h"

#include <algorithm>
#include <limits>
#include <map>

namespace tally::archive {

namespace {

using DaysById = std::map<Id, DayFigures>;

struct Range {
    int from = std::numeric_limits<int>::min();
    int to = std::numeric_limits<int>::max();

    bool holds(const Entry& entry) const { return from <= entry.firstDay && entry.lastDay <= to; }
    bool holds(ReadingTime at) const { return from <= dayOf(at) && dayOf(at) <= to; }
};

DaysById daysOf(ArchiveStore& store, const std::vector<Id>& ids) {
    DaysById days;
    store.dayFigures(ids, [&](Id id, std::string_view bytes) {
        auto figures = unpackDays(bytes);
        if (!figures)
            throw fault::deviceIo();
        days.emplace(id, *std::move(figures));
    });
    return days;
}

// The figures of the days in the range. A recording whose days are not there was removed since it was found,
// or they were lost: it gives none.
Figures figuresIn(const Range& range, const Entry& entry, const DaysById& days) {
    if (range.holds(entry))
        return entry.figures;
    const auto kept = days.find(entry.id);
    return kept == days.end() ? Figures() : kept->second.between(range.from, range.to);
}

// From the figures that were kept of each recording.
CircuitFigures sumApart(const Circuit& circuit, const Range& range, const DaysById& days) {
    CircuitFigures sum;
    for (const Entry* entry : circuit) {
        const Figures figures = figuresIn(range, *entry, days);
        const bool higher =
            figures.points > 0 && (sum.figures.points == 0 || figures.highest > sum.figures.highest);
        sum.figures.add(figures);
        if (higher)
            sum.highestFrom = entry->id;
    }
    return sum;
}

// From the readings, where recordings overlap.
CircuitFigures sumMerged(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit,
                         const Range& range) {
    const CircuitLoad load = circuitLoadOf(partsOf(store, tools, circuit), coarsestOf(circuit));
    const auto inside = [&](const CircuitPoint& point) { return range.holds(point.at); };
    const auto first = std::find_if(load.points.begin(), load.points.end(), inside);
    const auto last = std::find_if_not(first, load.points.end(), inside);
    return figuresOf(load, static_cast<std::size_t>(first - load.points.begin()),
                     static_cast<std::size_t>(last - first));
}

Peak peakOf(const Circuit& circuit, const CircuitFigures& sum) {
    Peak peak;
    const auto from = std::find_if(circuit.begin(), circuit.end(),
                                   [&](const Entry* entry) { return entry->id == sum.highestFrom; });
    peak.entry = from == circuit.end() ? circuit.front() : *from;
    peak.max = static_cast<double>(sum.figures.highest) / static_cast<double>(sum.scale * 10);
    peak.maxAt = sum.figures.highestAt;
    peak.mean = meanOf(sum.figures, sum.scale).value_or(0);
    peak.loadFactor = loadFactorOf(sum.figures, peak.entry->unit);
    return peak;
}

std::optional<double> figureOf(const Peak& peak, Rank by) {
    return by == Rank::max ? peak.max : by == Rank::mean ? peak.mean : peak.loadFactor;
}

std::vector<Id> cutByRange(const std::vector<Entry>& entries, const Range& range) {
    std::vector<Id> ids;
    for (const Entry& entry : entries)
        if (!range.holds(entry))
            ids.push_back(entry.id);
    return ids;
}

} // namespace

Peaks peaksOf(ArchiveStore& store, const ArchiveTools& tools, std::optional<int> from, std::optional<int> to,
              Rank by, std::size_t top) {
    Range range;
    range.from = from.value_or(range.from);
    range.to = to.value_or(range.to);
    Selection selection;
    selection.from = from;
    selection.to = to;
    Peaks all;
    all.entries = store.find(selection);
    const DaysById days = daysOf(store, cutByRange(all.entries, range));
    for (Circuit& circuit : circuitsOf(all.entries, tools)) {
        const CircuitFigures sum =
            standApart(circuit) ? sumApart(circuit, range, days) : sumMerged(store, tools, circuit, range);
        if (sum.figures.points > 0)
            all.peaks.push_back(peakOf(circuit, sum));
    }
    std::stable_sort(all.peaks.begin(), all.peaks.end(),
                     [by](const Peak& a, const Peak& b) { return figureOf(a, by) > figureOf(b, by); });
    if (top > 0 && all.peaks.size() > top)
        all.peaks.resize(top);
    return all;
}

} // namespace tally::archive
