// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/CopyArchive.h"

#include "archive/StoreFault.h"

namespace tally::archive {

namespace {

constexpr std::size_t batch = 250;

Kept keptFrom(ArchiveStore& store, Entry&& entry) {
    auto body = store.body(entry.id);
    auto days = body ? unpackDays(body->days) : std::nullopt;
    if (!days)
        throw StoreFault(StoreTrouble::damaged, "Recording " + entry.name() + " is damaged in the archive");
    Kept kept;
    kept.entry = std::move(entry);
    kept.days = *std::move(days);
    kept.readings = std::move(body->readings);
    kept.bytes = std::move(body->bytes);
    kept.notesFile = std::move(body->notesFile);
    return kept;
}

} // namespace

CopyCount copyArchive(ArchiveStore& from, ArchiveStore& to,
                      const std::function<void(const CopyCount&)>& progress) {
    CopyCount count;
    std::int64_t after = 0;
    for (auto entries = from.page(after, batch); !entries.empty(); entries = from.page(after, batch)) {
        after = entries.back().added;
        std::vector<Kept> recordings;
        for (Entry& entry : entries)
            recordings.push_back(keptFrom(from, std::move(entry)));
        for (const bool isNew : to.add(recordings))
            ++(isNew ? count.added : count.already);
        if (progress)
            progress(count);
    }
    return count;
}

} // namespace tally::archive
