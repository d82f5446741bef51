// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "archive/Verify.h"
#include "core/Files.h"

#include <string>
#include <vector>

namespace tally::archive {

// A recording with its bytes.
struct Fetched {
    Entry entry; // with sources
    Given given;
};

// Recordings with their bytes. Refused when one is not what was added, or no longer there.
Expected<std::vector<Fetched>> fetchAll(ArchiveStore& store, const ArchiveTools& tools,
                                        std::vector<Entry> entries);

// What came of writing recordings into a folder.
struct Written {
    std::size_t files = 0;
    std::vector<std::string> problems; // "NAME: why", in the order of the recordings
};

// Writes the exact bytes and notes of recordings into a folder, under the names of the files that were added;
// what is there already is never replaced.
Written writeInto(ArchiveStore& store, const ArchiveTools& tools, Files& files, std::vector<Entry> entries,
                  const std::string& folder);

} // namespace tally::archive
