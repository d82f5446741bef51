// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace tally {

// The file system as logic sees it. Paths and contents are bytes.
class Files {
public:
    virtual ~Files() = default;
    virtual bool exists(const std::string& path) const = 0;
    // Whether two paths lead to one file, however they are spelled.
    virtual bool same(const std::string& path, const std::string& other) const { return path == other; }
    // At most `maximum` bytes of a file. Throws File not found, Permission denied, Path/File access error.
    virtual std::string read(const std::string& path, std::uint64_t maximum) const = 0;
    // Replaces a file as a whole: written beside and renamed, so that the old one stays when this throws
    // (Disk full, Permission denied, Path not found, Path/File access error).
    virtual void write(const std::string& path, const std::string& bytes) = 0;
};

} // namespace tally
