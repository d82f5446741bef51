// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace tally {

// The leading number of an item, in tenths.
struct DataNumber {
    std::int16_t tenths = 0; // nearest, halves to even; 0 when there is no number
    bool whole = false;      // the item is a number to its end
    bool fits = true;        // in 16 bits
};

// Reads sign, digits, point and digits, exactly, whatever their number.
DataNumber readDataNumber(std::string_view item);

} // namespace tally
