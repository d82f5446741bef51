// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

namespace tally {

// Full rows as the writer makes them: ten right-aligned fields of four characters ("###0") or five ("##0.0").
// They give what reading them item by item gives, many times faster.
struct DataRow {
    // Whether the machine has what it takes (the vector unit of x86-64); elsewhere nothing is a row.
#if defined(__SSE2__)
    static constexpr bool available = true;
#else
    static constexpr bool available = false;
#endif
    static constexpr int fields = 10;
    static constexpr std::size_t highLength = 40;
    static constexpr std::size_t lowLength = 50;
    // How many characters must be readable from the row's start on.
    static constexpr std::size_t reach = 64;

    // Reads the row at `text`, its first field to `last[0]`, the next to `last[-1]` and so on. False when the
    // characters are no such row or a value does not fit; what was stored then is void.
    static bool readHigh(const char* text, std::int16_t* last);
    static bool readLow(const char* text, std::int16_t* last);
};

} // namespace tally
