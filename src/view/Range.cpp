// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Range.h"

#include "core/ModeTable.h"

#include <algorithm>

namespace tally {

namespace {

// Which whole interval of the file an entry lies in; the odd oldest entries count as the first one.
int intervalOf(const FileFacts& info, int entry) {
    return std::max(entry - firstWhole(info), 0) / valuesPerInterval(info.modeLetter);
}

Range entriesOf(const FileFacts& info, int firstInterval, int intervals) {
    const int k = valuesPerInterval(info.modeLetter);
    const int first = firstWhole(info) + k * firstInterval;
    return {first, first + k * intervals - 1};
}

} // namespace

int firstWhole(const FileFacts& info) {
    return info.count % valuesPerInterval(info.modeLetter);
}

Range wholeFile(const Recordings& recordings, int slot) {
    const FileFacts& info = recordings.info(slot);
    return {firstWhole(info), info.count - 1};
}

Range sameIntervals(const Recordings& recordings, const Range& ofFirstFile, int slot) {
    const FileFacts& first = recordings.info(0);
    return entriesOf(recordings.info(slot), intervalOf(first, ofFirstFile.first),
                     ofFirstFile.entries() / valuesPerInterval(first.modeLetter));
}

std::optional<Range> wholeTriples(const Recordings& recordings, int slot, int from, int to) {
    const FileFacts& info = recordings.info(slot);
    if (from < 0 || to < from || to >= info.count || to < firstWhole(info))
        return std::nullopt;
    const int firstInterval = intervalOf(info, from);
    return entriesOf(info, firstInterval, intervalOf(info, to) - firstInterval + 1);
}

std::span<const std::int16_t> present(const Recordings& recordings, int slot, const Range& range) {
    const std::span<const std::int16_t> all = recordings.gReadings.at(static_cast<std::size_t>(slot));
    const auto from = std::min(static_cast<std::size_t>(std::max(range.first, 0)), all.size());
    return all.subspan(from, std::min(static_cast<std::size_t>(range.entries()), all.size() - from));
}

namespace {

Extremes extremesIn(const Recordings& recordings, const Range& ofFirstFile, int slot) {
    const Range range = sameIntervals(recordings, ofFirstFile, slot);
    const auto readings = present(recordings, slot, range);
    Extremes extremes;
    if (!readings.empty())
        extremes = {readings.front(), readings.front()};
    for (const std::int16_t reading : readings) {
        extremes.smallest = std::min(extremes.smallest, reading);
        extremes.largest = std::max(extremes.largest, reading);
    }
    if (static_cast<int>(readings.size()) < range.entries()) {
        extremes.smallest = std::min(extremes.smallest, std::int16_t{0});
        extremes.largest = std::max(extremes.largest, std::int16_t{0});
    }
    return extremes;
}

template <typename Counts>
Extremes extremesWhere(const Recordings& recordings, const Range& ofFirstFile, Counts counts) {
    std::optional<Extremes> all;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        if (!counts(recordings.info(slot)))
            continue;
        const Extremes one = extremesIn(recordings, ofFirstFile, slot);
        all =
            !all ? one : Extremes{std::min(all->smallest, one.smallest), std::max(all->largest, one.largest)};
    }
    return all.value_or(Extremes());
}

} // namespace

Extremes extremesOf(const Recordings& recordings, const Range& ofFirstFile) {
    return extremesWhere(recordings, ofFirstFile, [](const FileFacts&) { return true; });
}

Extremes extremesOf(const Recordings& recordings, const Range& ofFirstFile, char unit) {
    return extremesWhere(recordings, ofFirstFile,
                         [unit](const FileFacts& info) { return info.unit() == unit; });
}

} // namespace tally
