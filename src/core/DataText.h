// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace tally {

// What a data text says: `facts` without the path, `readings` in tenths, oldest first.
struct Recording {
    FileFacts facts;
    std::vector<std::int16_t> readings;
};

// Why a data text is refused.
enum class DataRefusal {
    noHeader,   // no "H", "P" or "K", or its line does not end
    badMode,    // a mode letter outside "a" to "l"
    badTime,    // a header time that is no date
    noReadings, // nothing after the header
    outOfRange, // a value that does not fit 16-bit tenths
    touching,   // numbers that touch where no save lets them
    tooLong     // the part that was read holds neither all readings nor the terminator
};

// The header line of a data text.
struct DataHeader {
    std::string text;      // as kept: after the repair of the older layout, without its line end
    char modeLetter = 'a'; // lower case; a blank reads as "a"
    char typeLetter = ' ';
    std::size_t end = 0; // where the line after the header begins
};

// Finds the header: skips to the first "H", "P" or "K". Whether its time is a date is left to readDataText.
tl::expected<DataHeader, DataRefusal> findDataHeader(std::string_view bytes);

// Reads a whole data text (bytes as they stand in the file). `cutShort` says that the file goes on beyond
// them.
tl::expected<Recording, DataRefusal> readDataText(std::string_view bytes, bool cutShort = false);

} // namespace tally
