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
    constexpr double maximum = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -maximum, maximum));
}

} // namespace

Expected<int> forceReadings(Recordings& recordings, int slot, const Range& range, std::string_view text,
                            ForceWhich which, float& lastValue) {
    if (slot < 0 || slot >= Recordings::slotCount)
        return refuse(std::string(forceSlotError));
    const auto row = static_cast<std::size_t>(slot);
    const float value = single(Val(text));
    lastValue = value;
    const float limit = recordings.gInfo[row].low ? limitLow : limitHigh;
    const int start = toInt16(range.first);
    const int end = toInt16(range.last);
    const int first = which == ForceWhich::rightmost ? end : start;
    const int last = which == ForceWhich::leftmost ? start : end;
    if (!(value >= 0 && value <= limit))
        return refuse(std::string(outsideText) + std::string(betweenText) + plain(limit));

    auto& readings = recordings.gReadings[row];
    const int from = std::max(first, 0);
    const int count = std::min(last, static_cast<int>(readings.size()) - 1) - from + 1;
    if (count <= 0)
        return 0;
    if (recordings.written[row].empty())
        recordings.written[row] = readings;
    const auto begin = readings.begin() + from;
    recordings.forcedEdits[row].push_back({from, {begin, begin + count}});
    std::fill(begin, begin + count, toInt16(value * 10.0F));
    recordings.gInfo[row].forced = true;
    return count;
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

int unsavedReadings(const Recordings& recordings, int slot) {
    const auto row = static_cast<std::size_t>(slot);
    const auto& written = recordings.written.at(row);
    const auto& readings = recordings.gReadings.at(row);
    int others = 0;
    for (std::size_t i = 0; i < written.size(); ++i)
        others += written[i] != readings[i] ? 1 : 0;
    return others;
}

void readingsSaved(Recordings& recordings, int slot, const Range& saved) {
    const auto row = static_cast<std::size_t>(slot);
    auto& written = recordings.written.at(row);
    const auto& readings = recordings.gReadings.at(row);
    const int end = std::min(saved.last + 1, static_cast<int>(written.size()));
    for (int i = std::max(saved.first, 0); i < end; ++i)
        written[static_cast<std::size_t>(i)] = readings[static_cast<std::size_t>(i)];
}

} // namespace tally
