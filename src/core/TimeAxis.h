// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/Refusal.h"

#include <optional>
#include <string>
#include <vector>

namespace tally {

// The stretch of time that files share, as entries one interval apart. An entry is a reading, or a triple of
// a Min/Max/Avg recording: triples are counted from the newest reading, an incomplete oldest one is left out.
struct TimeAxis {
    ReadingTime start;      // of entry 0, which begins at that time
    int interval = 0;       // minutes, the length of each entry
    int points = 0;         // number of entries, at least 1
    int stride = 1;         // readings of an entry: 1, or 3 in the order average, maximum, minimum
    std::vector<int> first; // for each file the index of the first reading of entry 0

    ReadingTime timeOf(int entry) const { return start + std::int64_t{interval} * entry; }
    // When the last entry is over.
    ReadingTime end() const { return timeOf(points); }
    // The index of a reading of an entry; `offset` 0, or 0 to 2 for average, maximum, minimum.
    int reading(int file, int entry, int offset = 0) const {
        return first[static_cast<std::size_t>(file)] + stride * entry + offset;
    }
};

// The axis of one to three files, from their latest first entry to their earliest last one. `range` counts in
// readings of the first file and narrows it; a triple that it touches takes part whole. Refuses files of
// another unit or interval than the first, a start that lies no whole interval from the first file's, and
// files without a common entry, also in a range; an empty range is one outside the common time.
Expected<TimeAxis> timeAxis(const std::vector<FileFacts>& files, std::optional<Range> range = {});
// The same of the files that are open.
Expected<TimeAxis> timeAxis(const Recordings& recordings, std::optional<Range> range = {});

// The files cut to a common time axis of theirs: reading i of each stands for the same time. Facts that speak
// of the whole file stay, save count and start; what was forced outside the axis is left out.
Recordings aligned(const Recordings& recordings, const TimeAxis& axis);

// What is to be said of files without a common axis: "b.dat starts 26 h after a.dat; readings are combined by
// number, not by time"; empty for no minutes.
std::string startsApart(const std::string& file, const std::string& first, std::int64_t minutes);

inline constexpr const char* axisOtherUnit = "The files are not all of one unit";
inline constexpr const char* axisOtherInterval = "The files have different intervals";
inline constexpr const char* axisOffset = "The files start no whole number of intervals apart";
inline constexpr const char* axisNothingCommon = "The files have no reading in common";
inline constexpr const char* axisNoTriple = "There is no complete reading";

} // namespace tally
