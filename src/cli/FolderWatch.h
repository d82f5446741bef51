// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/archive/FoundFiles.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tally::cli {

// Looks again and again for data files that are new or changed below some paths. A file that is still being
// written waits until it stands as it did a look ago.
class FolderWatch {
public:
    // What stands there now counts as known.
    explicit FolderWatch(std::vector<std::string> paths);

    // The files that came to rest since the last look.
    std::vector<archive::FoundFile> settled();

private:
    struct Look {
        std::uintmax_t size = 0;
        std::filesystem::file_time_type written;
        bool known = false;
        bool sameAs(const Look& other) const { return size == other.size && written == other.written; }
    };

    std::vector<std::string> paths_;
    std::map<std::string, Look> looks_;
};

} // namespace tally::cli
