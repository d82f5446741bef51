// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Questions.h"

#include <algorithm>

namespace tally::archive {

std::vector<Part> partsOf(ArchiveStore& store, const ArchiveTools& tools, const Circuit& circuit) {
    std::vector<Id> ids;
    for (const Entry* entry : circuit)
        ids.push_back(entry->id);
    std::vector<Part> parts;
    store.readings(ids, [&](Id id, std::string_view packed) {
        const auto entry =
            std::find_if(circuit.begin(), circuit.end(), [id](const Entry* one) { return one->id == id; });
        if (entry != circuit.end())
            parts.push_back({*entry, loadOf(**entry, packed, tools)});
    });
    return parts;
}

std::vector<Entry> originsOf(ArchiveStore& store, const Entry& entry) {
    Selection selection;
    selection.serial = entry.serial;
    selection.unit = entry.unit;
    selection.from = entry.firstDay;
    selection.to = entry.lastDay;
    std::vector<Entry> origins = store.find(selection);
    const auto isNone = [&](const Entry& other) {
        const bool holds = other.mode == entry.mode && other.start <= entry.start && entry.end <= other.end;
        const bool longer = other.count > entry.count;
        return other.id == entry.id || !holds || !(longer || other.added < entry.added);
    };
    origins.erase(std::remove_if(origins.begin(), origins.end(), isNone), origins.end());
    return origins;
}

} // namespace tally::archive
