// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/GiveFiles.h"

#include <memory>
#include <string>

class QTemporaryDir;

namespace tally {

class Files;

// The copies of archived recordings that the window has opened: read-only, in a folder that goes with the
// program.
class ArchiveCopies {
public:
    explicit ArchiveCopies(Files& files);
    ~ArchiveCopies();
    ArchiveCopies(const ArchiveCopies&) = delete;
    ArchiveCopies& operator=(const ArchiveCopies&) = delete;

    // Writes a copy with its notes and gives its path. Throws file faults.
    std::string put(const archive::Fetched& recording);
    bool holds(const std::string& path) const;

private:
    Files& files_;
    std::unique_ptr<QTemporaryDir> folder_; // made when the first copy is wanted
};

} // namespace tally
