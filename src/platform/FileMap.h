// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tally {

// A part of a file in memory: what is put there is with the system at once, without a call that could wait
// for a disk, and outlives the program.
class FileMap {
public:
    FileMap() = default;
    ~FileMap() { release(); }
    FileMap(const FileMap&) = delete;
    FileMap& operator=(const FileMap&) = delete;

    // Takes room on the disk for the part, which lengthens the file by characters 0, and maps it; false where
    // that cannot be had. `start` is a multiple of `step`.
    bool map(int file, std::uint64_t start, std::size_t length);
    void release();
    std::span<char> place() const { return place_; }

    static constexpr std::size_t step = 65536;

private:
    std::span<char> place_;
};

} // namespace tally
