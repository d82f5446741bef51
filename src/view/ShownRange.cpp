// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ShownRange.h"

#include "core/ModeTable.h"

#include <algorithm>

namespace tally {

namespace {

// Which whole interval of the file an entry lies in; the odd oldest entries count as the first one.
int intervalOf(const FileFacts& info, int entry) {
    return std::max(entry - firstWhole(info), 0) / valuesPerInterval(info.modeLetter);
}

ShownRange entriesOf(const FileFacts& info, int firstInterval, int intervals) {
    const int k = valuesPerInterval(info.modeLetter);
    const int first = firstWhole(info) + k * firstInterval;
    return {first, first + k * intervals - 1};
}

} // namespace

int firstWhole(const FileFacts& info) {
    return info.count % valuesPerInterval(info.modeLetter);
}

ShownRange wholeFile(const Recordings& recordings, int slot) {
    const FileFacts& info = recordings.info(slot);
    return {firstWhole(info), info.count - 1};
}

ShownRange sameIntervals(const Recordings& recordings, const ShownRange& ofFirstFile, int slot) {
    const FileFacts& first = recordings.info(0);
    return entriesOf(recordings.info(slot), intervalOf(first, ofFirstFile.first),
                     ofFirstFile.entries() / valuesPerInterval(first.modeLetter));
}

ShownRange shownRange(const Recordings& recordings, const DisplayState& state, int slot) {
    const ShownRange whole = wholeFile(recordings, slot);
    const FileFacts& first = recordings.info(0);
    const int from = std::max(recordings.gDatastart, 0);
    const int to = state.spanApplied ? std::min(recordings.gdataend, first.count - 1) : first.count - 1;
    // Counted in whole intervals of the first file, whose indexes the range is given in.
    const int intervals = to < firstWhole(first) ? 0 : intervalOf(first, to) - intervalOf(first, from) + 1;
    ShownRange range = entriesOf(recordings.info(slot), intervalOf(first, from), std::max(intervals, 0));
    range.last = state.spanApplied ? std::min(range.last, whole.last) : whole.last;
    return range;
}

std::optional<ShownRange> wholeTriples(const Recordings& recordings, int slot, int from, int to) {
    const FileFacts& info = recordings.info(slot);
    if (from < 0 || to < from || to >= info.count || to < firstWhole(info))
        return std::nullopt;
    const int firstInterval = intervalOf(info, from);
    return entriesOf(info, firstInterval, intervalOf(info, to) - firstInterval + 1);
}

std::string fileNameOf(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

} // namespace tally
