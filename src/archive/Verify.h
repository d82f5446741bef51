// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tally::archive {

struct Verified {
    std::int64_t checked = 0;
    std::vector<std::string> bad; // names of recordings
};

// Makes every hash and figure again from the bytes and compares them with what is kept.
Verified verifyArchive(ArchiveStore& store, const ArchiveTools& tools,
                       const std::function<void(const Verified&)>& progress = {});

// The bytes of a recording and its notes file; refused when they are not what was added.
struct Given {
    std::string bytes;
    std::optional<std::string> notesFile;
};
Expected<Given> giveBack(ArchiveStore& store, const Entry& entry, const ArchiveTools& tools);

} // namespace tally::archive
