// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"

namespace tally {

// The file system of the machine. Every file that the program writes goes through here. Paths are bytes,
// passed on as they stand.
class SafeFile : public Files {
public:
    bool exists(const std::string& path) const override;
    // Links and ways around are followed; paths to files that are not there are compared as they stand.
    bool same(const std::string& path, const std::string& other) const override;
    // Regular files only, so that a pipe or a device never stalls the program. Throws File not found,
    // Permission denied, Path/File access error, Device I/O error.
    std::string read(const std::string& path, std::uint64_t maximum) const override;
    // On the disk when it returns. Throws Disk full, Permission denied, Path not found, Path/File access
    // error, Device I/O error; the old file then stands as it was.
    void write(const std::string& path, const std::string& bytes) override;
};

} // namespace tally
