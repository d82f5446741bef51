// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tally {

// What the scan of a received text counted.
struct ValidationCounts {
    std::int16_t badLines = 0;
    std::int16_t over999 = 0;
    std::int16_t count999 = 0;
    std::int16_t ctrlZ = 0;
    std::int16_t badChars = 0;
    std::optional<unsigned char> firstBadChar = {};

    // No line, reading or character is wrong and there is exactly one terminator.
    bool clean() const { return badLines == 0 && over999 == 0 && badChars == 0 && ctrlZ == 1; }
    // The counters badLines, over999, count999, ctrlZ and badChars joined by blanks; empty when clean.
    std::string result() const;
    bool operator==(const ValidationCounts&) const = default;
};

// Scans the data section; what stands between the header and its mark counts as bad lines. With
// `change999sTo000` rewrites the readings "999" in place. Throws Overflow, and then leaves the text as it
// was, when a counter leaves 16 bits.
ValidationCounts validate(std::string& gText, bool change999sTo000);

} // namespace tally
