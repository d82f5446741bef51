// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Aligned.h"

#include <algorithm>

namespace tally {

namespace {

// The part of a forcing that lies in `count` readings from `from` on, counted from there.
ForcedEdit cut(const ForcedEdit& edit, int from, int count) {
    const int first = std::max(edit.first, from);
    const int end = std::min(edit.first + static_cast<int>(edit.before.size()), from + count);
    if (end <= first)
        return {};
    const auto begin = edit.before.begin() + (first - edit.first);
    return {first - from, {begin, begin + (end - first)}};
}

} // namespace

Recordings aligned(const Recordings& recordings, const TimeAxis& axis) {
    Recordings result = recordings;
    const int count = axis.points * axis.stride;
    for (std::size_t slot = 0; slot < axis.first.size(); ++slot) {
        const int from = axis.first[slot];
        const auto begin = recordings.gReadings[slot].begin() + from;
        result.gReadings[slot].assign(begin, begin + count);
        result.gInfo[slot].count = count;
        result.gInfo[slot].start = axis.start;
        auto& edits = result.forcedEdits[slot];
        for (ForcedEdit& edit : edits)
            edit = cut(edit, from, count);
        std::erase_if(edits, [](const ForcedEdit& edit) { return edit.before.empty(); });
    }
    return result;
}

} // namespace tally
