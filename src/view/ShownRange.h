// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <optional>
#include <string>

namespace tally {

// Reading indexes of one file, both inclusive; empty when last < first.
struct ShownRange {
    int first = 0;
    int last = -1;
    int entries() const { return last < first ? 0 : last - first + 1; }
};

// The oldest entry of a file that belongs to a whole triple: triples are counted from the newest end. Always
// 0 in an average recording.
int firstWhole(const FileFacts& info);

// Every reading of a file that a view shows (whole triples in a Min/Max/Avg recording).
ShownRange wholeFile(const Recordings& recordings, int slot);

// What table, summary, save and export cover of a file: gDatastart to gdataend while a span is applied, else
// the whole file from gDatastart on. Never beyond the last reading; whole triples.
ShownRange shownRange(const Recordings& recordings, const DisplayState& state, int slot);

// The same stretch of another file, interval by interval; may run beyond its last reading.
ShownRange sameIntervals(const Recordings& recordings, const ShownRange& ofFirstFile, int slot);

// Whole triples around a reading range of a file; nothing when an end is outside the file, the ends are
// turned round or no whole triple is in it.
std::optional<ShownRange> wholeTriples(const Recordings& recordings, int slot, int from, int to);

// The name part of a path ("a/b.dat" gives "b.dat").
std::string fileNameOf(const std::string& path);

} // namespace tally
