// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Archives.h"
#include "archive/Feed.h"
#include "core/Files.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tally::archive {

// How far an adding is.
struct AddProgress {
    std::int64_t files = 0; // found; all of them once `looking` is over
    bool looking = true;
    FeedCount count; // acknowledged

    std::int64_t done() const {
        return count.added + count.already + static_cast<std::int64_t>(count.failures.size());
    }
};

struct AddOutcome {
    AddProgress progress;
    bool stopped = false;
    std::string fault; // why it could not go on; empty when it came to its end or was stopped
};

// Adds the data files of some paths to an archive. `stop` is asked between files; what was acknowledged
// stays, the batch in hand is given up. `progress` is called now and then.
AddOutcome addPaths(const Archives& archives, const Place& place, const Files& files,
                    const std::vector<std::string>& paths, const std::function<bool()>& stop,
                    const std::function<void(const AddProgress&)>& progress);

// "1,200 of 4,000: 1,150 added, 48 there already, 2 failed".
std::string progressText(const AddProgress& progress);
// What came of it, with the first files that failed.
std::string outcomeText(const AddOutcome& outcome);

} // namespace tally::archive
