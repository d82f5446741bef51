// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ForceReadings.h"

#include "core/Numbers.h"

#include <algorithm>
#include <limits>

namespace tally {

namespace {

constexpr float limitLow = 99.9F;
constexpr float limitHigh = 999.0F;
constexpr std::string_view outsideText = "Error - New reading is outside the allowable range.\r\n";
constexpr std::string_view betweenText = "  - Must be between 0 and ";

// What is beyond single precision becomes its largest number, which every limit refuses.
float single(double value) {
    constexpr double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -most, most));
}

} // namespace

ForceResult forceReadings(Recordings& recordings, std::string_view text, ForceWhich which, float& lastValue) {
    if (recordings.ginx < 0 || recordings.ginx >= Recordings::slotCount)
        return {std::string(forceSlotError), 0};
    const auto slot = static_cast<std::size_t>(recordings.ginx);
    const float value = single(Val(text));
    lastValue = value;
    const float limit = recordings.gInfo[slot].low ? limitLow : limitHigh;
    const int start = toInt16(recordings.gDatastart);
    const int end = toInt16(recordings.gdataend);
    const int first = which == ForceWhich::rightmost ? end : start;
    const int last = which == ForceWhich::leftmost ? start : end;
    if (!(value >= 0 && value <= limit))
        return {std::string(outsideText) + std::string(betweenText) + plain(limit), 0};

    auto& readings = recordings.gReadings[slot];
    const int from = std::max(first, 0);
    const int count = std::min(last, static_cast<int>(readings.size()) - 1) - from + 1;
    if (count <= 0)
        return {};
    const auto begin = readings.begin() + from;
    recordings.forcedEdits[slot].push_back({from, {begin, begin + count}});
    std::fill(begin, begin + count, toInt16(value * 10.0F));
    recordings.gInfo[slot].forced = true;
    return {{}, count};
}

int undoForcing(Recordings& recordings, int slot) {
    auto& edits = recordings.forcedEdits.at(static_cast<std::size_t>(slot));
    if (edits.empty())
        return 0;
    const ForcedEdit& edit = edits.back();
    const int count = static_cast<int>(edit.before.size());
    auto& readings = recordings.gReadings[static_cast<std::size_t>(slot)];
    std::copy(edit.before.begin(), edit.before.end(), readings.begin() + edit.first);
    edits.pop_back();
    recordings.gInfo[static_cast<std::size_t>(slot)].forced = !edits.empty();
    return count;
}

} // namespace tally
