// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/CircuitLoad.h"

#include "archive/BlockCounter.h"
#include "archive/Day.h"

#include <algorithm>
#include <tuple>

namespace tally::archive {

namespace {

void appendAsRead(std::vector<CircuitPoint>& points, const Part& part, std::int64_t scale) {
    const Load& load = part.load;
    for (std::size_t point = 0; point < load.points(); ++point)
        points.push_back({floorDiv(load.at(point).minutes, load.interval), load.at(point),
                          load.average[point] * scale, load.high(point) * scale, part.entry->id});
}

void appendAveraged(std::vector<CircuitPoint>& points, const Part& part, int interval) {
    const Load& load = part.load;
    for (std::size_t point = 0; point < load.points();) {
        const std::int64_t slot = floorDiv(load.at(point).minutes, interval);
        std::int64_t sum = 0;
        std::int64_t count = 0;
        std::int64_t highest = load.high(point);
        for (; point < load.points() && floorDiv(load.at(point).minutes, interval) == slot; ++point) {
            sum += load.average[point];
            highest = std::max<std::int64_t>(highest, load.high(point));
            ++count;
        }
        const std::int64_t mean = sum * (fineScale / count);
        points.push_back({slot,
                          {slot * interval},
                          mean,
                          load.maximum.empty() ? mean : highest * fineScale,
                          part.entry->id});
    }
}

bool sameSlot(const CircuitPoint& a, const CircuitPoint& b) {
    return a.slot == b.slot;
}

bool earlier(const CircuitPoint& a, const CircuitPoint& b) {
    return a.slot < b.slot;
}

// Amperes and volts are never put together: where a circuit has both, the amperes count.
void keepOneUnit(Circuit& circuit) {
    const auto isVolts = [](const Entry* entry) { return entry->unit == 'V'; };
    if (!std::all_of(circuit.begin(), circuit.end(), isVolts))
        circuit.erase(std::remove_if(circuit.begin(), circuit.end(), isVolts), circuit.end());
}

} // namespace

CircuitLoad circuitLoadOf(std::vector<Part> parts, int interval, bool scaled) {
    // Those added first stand first, and stay there when the points are put in order of time.
    std::sort(parts.begin(), parts.end(), [](const Part& a, const Part& b) {
        return std::tie(a.entry->added, a.entry->id) < std::tie(b.entry->added, b.entry->id);
    });
    CircuitLoad all;
    all.interval = interval;
    const auto finer = [&](const Part& part) { return part.load.interval != interval; };
    all.scale = scaled || std::any_of(parts.begin(), parts.end(), finer) ? fineScale : 1;
    for (const Part& part : parts)
        if (finer(part))
            appendAveraged(all.points, part, interval);
        else
            appendAsRead(all.points, part, all.scale);
    if (!std::is_sorted(all.points.begin(), all.points.end(), earlier))
        std::stable_sort(all.points.begin(), all.points.end(), earlier);
    all.points.erase(std::unique(all.points.begin(), all.points.end(), sameSlot), all.points.end());
    return all;
}

CircuitFigures figuresOf(const CircuitLoad& load, std::size_t first, std::size_t count) {
    CircuitFigures sum;
    sum.scale = load.scale;
    Figures& figures = sum.figures;
    BlockCounter counter(load.interval);
    for (std::size_t at = first; at < first + count; ++at) {
        const CircuitPoint& point = load.points[at];
        if (figures.points == 0 || point.high > figures.highest) {
            figures.highest = point.high;
            figures.highestAt = point.at;
            sum.highestFrom = point.from;
        }
        ++figures.points;
        figures.total += point.value;
        counter.add(point.at, point.value, figures);
    }
    return sum;
}

std::vector<Circuit> circuitsOf(std::span<const Entry> entries, const ArchiveTools& tools) {
    std::map<std::string, std::size_t> places;
    std::vector<Circuit> circuits;
    for (const Entry& entry : entries) {
        const Belonging& belonging = entry.belonging;
        if (belonging.circuit.empty()) {
            circuits.push_back({&entry});
            continue;
        }
        std::string key = tools.fold(belonging.station) + '\x01' + tools.fold(belonging.circuit);
        const auto [place, isNew] = places.try_emplace(std::move(key), circuits.size());
        if (isNew)
            circuits.emplace_back();
        circuits[place->second].push_back(&entry);
    }
    std::for_each(circuits.begin(), circuits.end(), keepOneUnit);
    return circuits;
}

bool standApart(Circuit& circuit) {
    std::sort(circuit.begin(), circuit.end(),
              [](const Entry* a, const Entry* b) { return a->start < b->start; });
    for (std::size_t at = 1; at < circuit.size(); ++at) {
        const Entry& before = *circuit[at - 1];
        const Entry& after = *circuit[at];
        const int last = before.interval;
        if (after.interval != last)
            return false;
        const ReadingTime lastReading = before.end - last;
        const int shared = std::max(last, demandWindow);
        if (floorDiv(after.start.minutes, shared) <= floorDiv(lastReading.minutes, shared))
            return false;
    }
    return true;
}

int coarsestOf(const Circuit& circuit) {
    int coarsest = 1;
    for (const Entry* entry : circuit)
        coarsest = std::max(coarsest, entry->interval);
    return coarsest;
}

} // namespace tally::archive
