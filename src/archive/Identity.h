// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tally::archive {

// The key of a recording in a store: the first 63 bits of the SHA-256 of its bytes, never negative.
using Id = std::int64_t;

Id idOf(std::string_view sha);

// The first 16 hexadecimal digits of a SHA-256: how a recording is called.
std::string nameOf(std::string_view sha);

// All recordings whose SHA-256 begins with some hexadecimal digits (1 to 64, either case): the keys between
// which they lie, both included.
class IdBeginning {
public:
    // Throws nothing; `valid` is false for what are no such digits.
    explicit IdBeginning(std::string_view digits);
    bool valid() const { return valid_; }
    Id lowest() const { return lowest_; }
    Id highest() const { return highest_; }
    bool fits(std::string_view sha) const;

private:
    std::string digits_;
    bool valid_ = false;
    Id lowest_ = 0;
    Id highest_ = 0;
};

} // namespace tally::archive
