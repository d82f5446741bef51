// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Faults.h"

#include <random>
#include <string>
#include <vector>

namespace tally::sim {

// Where the fields of a header stand.
enum class Layout {
    current, // time in columns 31 to 44, battery in 45 to 56
    older,   // time in columns 47 to 60
    brief,   // ends after the time, at column 44
};

struct Header {
    std::string code = "KWT";    // columns 1 to 3
    char mode = 'a';             // column 4
    std::string serial = "1234"; // columns 8 to 11
    std::string time;            // 14 characters
    int battery = 0x3E8;         // raw reading, three hexadecimal digits
};

// A header without its line end.
std::string headerText(const Header& header, Layout layout);

// What follows a header: carriage return, after a brief header with its line feed.
std::string lineEnd(Layout layout);

// Characters of any value, as a disturbed line brings them.
std::string rubbish(int count, std::mt19937& random);

struct MemoryText {
    std::string text;
    // Where an endless text goes on when its end is reached; npos for one that ends.
    std::size_t repeatFrom = std::string::npos;
};

// The memory as an instrument sends it: header, "T:" and ten readings a line, newest first, ctrl/Z. `low`
// writes tenths with one decimal; noise is drawn from `random`.
MemoryText memoryText(const Header& header, Layout layout, const std::vector<int>& newestFirst, bool low,
                      const Faults& faults, std::mt19937& random);

} // namespace tally::sim
