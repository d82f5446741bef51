// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/CircuitGrowth.h"

#include "core/Numbers.h"

namespace tally::archive {

Expected<CircuitGrowth> circuitGrowthOf(ArchiveStore& store, const ArchiveTools& tools, const Entry& entry) {
    if (entry.belonging.circuit.empty())
        return refuse("This recording has no circuit", {},
                      "Give it one with Assign, so that it can be compared over the years.");
    Selection selection;
    selection.station = entry.belonging.station;
    selection.circuit = entry.belonging.circuit;
    selection.unit = entry.unit;
    const std::vector<Entry> entries = store.find(selection);
    Circuit circuit;
    for (const Entry& one : entries)
        circuit.push_back(&one);
    CircuitGrowth growth{
        entry.belonging.station, entry.belonging.circuit, entry.unit, static_cast<int>(entries.size()), {}};
    if (!circuit.empty())
        growth.years = growthOf(store, tools, circuit);
    return growth;
}

std::array<std::string, 5> yearTexts(const YearOfLoad& year) {
    const std::string change =
        year.change ? (*year.change > 0 ? "+" : "") + Format(*year.change, "0.0") : "-";
    return {std::to_string(year.year), Format(year.peak, "0.0"), Format(year.mean, "0.0"),
            std::to_string(year.days), change};
}

} // namespace tally::archive
