// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileMap.h"
#include "platform/JournalFile.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tally {

// The file of a reception's characters. They are read straight into it where the system allows that, so that
// there is no moment in which a killed program loses one. While it is open, and after a kill, characters 0
// fill it up to a multiple of FileMap::step; withoutFilling() leaves them out.
class ReceptionFile {
public:
    // Makes a new file for this user alone; false when that cannot be done.
    bool create(const std::string& path);
    // Where the next characters may be put before they are appended; empty when that cannot be had.
    std::span<char> room();
    // Adds characters. What stands at the beginning of room() stays where it is.
    bool append(std::string_view characters);
    // Takes the filling off and closes. What the file holds is with the system, not on the disk.
    void close();
    bool isOpen() const { return file_.isOpen(); }
    std::uint64_t size() const { return size_; }
    // For bringing it to the disk.
    const JournalFile& file() const { return file_; }
    const std::string& error() const { return file_.error(); }

private:
    void leaveMap();

    JournalFile file_;
    FileMap map_;
    std::uint64_t start_ = 0; // of the mapped part
    std::uint64_t size_ = 0;
    bool mayMap_ = true;
};

// The characters in the bytes of such a file.
std::string_view withoutFilling(std::string_view bytes);

} // namespace tally
