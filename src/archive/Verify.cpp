// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Verify.h"

#include "archive/StoreFault.h"

#include <tuple>

namespace tally::archive {

namespace {

constexpr std::size_t batch = 250;

auto figuresOf(const Figures& figures) {
    return std::make_tuple(figures.points, figures.total, figures.highest, figures.highestAt, figures.blocks,
                           figures.blockTotal, figures.blockHighest);
}

auto factsOf(const Entry& entry) {
    return std::make_tuple(entry.id, entry.sha, entry.serial, entry.unit, entry.mode, entry.interval,
                           entry.start, entry.end, entry.firstDay, entry.lastDay, entry.count, entry.lowest,
                           entry.size, entry.notes, figuresOf(entry.figures));
}

bool namesFit(const Belonging& kept, const Belonging& made) {
    return kept.assigned || (kept.station == made.station && kept.circuit == made.circuit);
}

bool isGood(ArchiveStore& store, const Entry& entry, const ArchiveTools& tools) {
    const auto body = store.body(entry.id);
    const auto bytes = body ? tools.unsqueeze(body->bytes) : std::nullopt;
    if (!bytes || tools.sha256(*bytes) != entry.sha)
        return false;
    const auto made = keptOf(*bytes, body->notesFile, {}, tools);
    if (!made || factsOf(made->entry) != factsOf(entry) || packDays(made->days) != body->days)
        return false;
    const auto readings = readingsOf(body->readings, entry.mode, tools);
    return namesFit(entry.belonging, made->entry.belonging) && readings &&
           readings == readingsOf(made->readings, entry.mode, tools);
}

} // namespace

Verified verifyArchive(ArchiveStore& store, const ArchiveTools& tools,
                       const std::function<void(const Verified&)>& progress) {
    Verified verified;
    std::int64_t after = 0;
    for (auto entries = store.page(after, batch); !entries.empty(); entries = store.page(after, batch)) {
        after = entries.back().added;
        for (const Entry& entry : entries) {
            ++verified.checked;
            if (!isGood(store, entry, tools))
                verified.bad.push_back(entry.name());
        }
        if (progress)
            progress(verified);
    }
    return verified;
}

Expected<Given> giveBack(ArchiveStore& store, const Entry& entry, const ArchiveTools& tools) {
    const auto body = store.body(entry.id);
    auto bytes = body ? tools.unsqueeze(body->bytes) : std::nullopt;
    if (!bytes || tools.sha256(*bytes) != entry.sha)
        return refuse("The recording is damaged in the archive", entry.name(),
                      "Its bytes are no longer those that were added.");
    return Given{*std::move(bytes), body->notesFile};
}

} // namespace tally::archive
