// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"

#include <functional>

namespace tally::archive {

// How many were new in the target, and how many were there.
struct CopyCount {
    std::int64_t added = 0;
    std::int64_t already = 0;
};

// Puts every recording of one archive into another, in the order of adding, with all that is known of it.
// `progress` is called after each acknowledged batch. Throws StoreFault; what was acknowledged stays in the
// target.
CopyCount copyArchive(ArchiveStore& from, ArchiveStore& to,
                      const std::function<void(const CopyCount&)>& progress = {});

} // namespace tally::archive
