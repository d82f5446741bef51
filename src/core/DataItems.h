// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace tally {

// The items of a data text as readings in tenths.
struct DataItems {
    std::vector<std::int16_t> readings; // the newest 42,966 at most, oldest first
    int unreadable = 0;                 // items that were no numbers, and a terminator in the middle
    // A value did not fit 16-bit tenths, or numbers touch in a way that no save writes; the readings are then
    // not all there.
    bool outOfRange = false;
    bool touching = false;
    bool ended = false;    // by the terminator or by 43,050 items, not by the end of the text
    bool complete = false; // the terminator stands behind them
};

// Reads what stands after header and "T:". `low`: the readings carry one decimal, so that numbers which touch
// are told apart by their points, else by the four places that a save gives each.
DataItems readDataItems(std::string_view text, bool low);

// White space or comma.
bool isDataSeparator(char c);

inline constexpr char terminator = '\x1a';

} // namespace tally
