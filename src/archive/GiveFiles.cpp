// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/GiveFiles.h"

#include "archive/EntryTexts.h"
#include "archive/StoreFault.h"
#include "core/Fault.h"
#include "core/NotesFile.h"

#include <utility>

namespace tally::archive {

Expected<std::vector<Fetched>> fetchAll(ArchiveStore& store, const ArchiveTools& tools,
                                        std::vector<Entry> entries) {
    store.addSources(entries);
    std::vector<Fetched> fetched;
    for (Entry& entry : entries) {
        auto given = giveBack(store, entry, tools);
        if (!given)
            return tl::make_unexpected(given.error());
        fetched.push_back({std::move(entry), *std::move(given)});
    }
    return fetched;
}

Written writeInto(ArchiveStore& store, const ArchiveTools& tools, Files& files, std::vector<Entry> entries,
                  const std::string& folder) {
    store.addSources(entries);
    Written written;
    std::set<std::string> taken;
    for (const Entry& entry : entries) {
        std::string path;
        do
            path = folder + "/" + fileNameFor(entry, taken);
        while (files.exists(path) || files.exists(notesPath(path)));
        try {
            const auto given = giveBack(store, entry, tools);
            if (!given) {
                written.problems.push_back(entry.name() + ": " + given.error().text);
                continue;
            }
            files.write(path, given->bytes);
            if (given->notesFile)
                files.write(notesPath(path), *given->notesFile);
            ++written.files;
        } catch (const StoreFault&) {
            throw;
        } catch (const Fault& fault) {
            written.problems.push_back(path + ": " + fault.what());
        }
    }
    return written;
}

} // namespace tally::archive
