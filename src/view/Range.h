// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <cstdint>
#include <optional>
#include <span>

namespace tally {

// The oldest reading of a file that belongs to a whole triple: triples are counted from the newest end.
// Always 0 in an average recording.
int firstWhole(const FileFacts& info);

// Every reading of a file that a view shows (whole triples in a Min/Max/Avg recording).
Range wholeFile(const Recordings& recordings, int slot);

// The same stretch of another file, interval by interval; may run beyond its last reading.
Range sameIntervals(const Recordings& recordings, const Range& ofFirstFile, int slot);

// Whole triples around a reading range of a file; nothing when an end is outside the file, the ends are
// turned round or no whole triple is in it.
std::optional<Range> wholeTriples(const Recordings& recordings, int slot, int from, int to);

// The readings that a file has in a range; what is missing at its end counts as 0.
std::span<const std::int16_t> present(const Recordings& recordings, int slot, const Range& range);

// The smallest and the largest reading, tenths.
struct Extremes {
    std::int16_t smallest = 0;
    std::int16_t largest = 0;
};

// Over a range of the first file and the same intervals of the others; a reading that a file does not have
// counts as 0.
Extremes extremesOf(const Recordings& recordings, const Range& ofFirstFile);
// The same of the open files of one unit ('A' or 'V').
Extremes extremesOf(const Recordings& recordings, const Range& ofFirstFile, char unit);

} // namespace tally
