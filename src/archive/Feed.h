// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveStore.h"
#include "archive/FoundFile.h"
#include "core/Files.h"

#include <cstdint>
#include <functional>
#include <future>
#include <string>
#include <vector>

namespace tally::archive {

// What came of adding files to an archive. Counted only once the store has acknowledged it.
struct FeedCount {
    struct Failure {
        std::string path;
        std::string reason;
    };
    std::int64_t added = 0;
    std::int64_t already = 0;
    std::vector<Failure> failures;
};

// Reads data files and their notes and keeps them in an archive, a batch at a time: while the store writes
// one, the next is made beside it.
class Feed {
public:
    // `progress` is called after each batch that was acknowledged or failed file that was told.
    Feed(ArchiveStore& store, const ArchiveTools& tools, const Files& files,
         std::function<void(const FeedCount&)> progress);

    // Adds a file; it counts when its batch is acknowledged. Throws StoreFault when the store fails.
    void take(FoundFile&& file);
    void fail(const std::string& path, const std::string& reason);
    // Writes what is waiting.
    void finish();

    const FeedCount& count() const { return count_; }

private:
    using Made = std::vector<Expected<Kept>>;

    // Begins to make what is waiting, and meanwhile writes what was made before.
    void passOn();
    void make();
    void write(Made&& batch);

    ArchiveStore& store_;
    const ArchiveTools& tools_;
    const Files& files_;
    std::function<void(const FeedCount&)> progress_;
    FeedCount count_;
    std::vector<FoundFile> waiting_;
    std::future<Made> making_;
};

} // namespace tally::archive
