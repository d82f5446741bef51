// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TimeAxis.h"

#include "core/ModeTable.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::int64_t minutesPerHour = 60;
constexpr std::int64_t minutesPerDay = 24 * minutesPerHour;
// From here on hours say less than days.
constexpr std::int64_t daysFrom = 3 * minutesPerDay;

// "15 min", "26 h", "1 h 30 min", "12 days".
std::string lengthText(std::int64_t minutes) {
    if (minutes >= daysFrom)
        return std::to_string(minutes / minutesPerDay) + " days";
    const std::int64_t hours = minutes / minutesPerHour;
    const std::int64_t rest = minutes % minutesPerHour;
    std::string text = hours > 0 ? std::to_string(hours) + " h" : "";
    if (rest > 0)
        text += (text.empty() ? "" : " ") + std::to_string(rest) + " min";
    return text;
}

// The entries of one file.
struct Stretch {
    ReadingTime start;
    std::int64_t entries = 0;
    int firstReading = 0;

    ReadingTime end(int interval) const { return start + entries * interval; }
};

Stretch wholeFile(const FileFacts& info, int stride) {
    const int firstReading = info.count % stride;
    return {timeOf(info, firstReading), info.count / stride, firstReading};
}

// Only the entries that the range touches.
Stretch narrowed(const Stretch& whole, const Range& range, int stride, int interval) {
    const auto entryOf = [&](int reading) { return std::max(reading - whole.firstReading, 0) / stride; };
    const std::int64_t from = entryOf(range.first);
    const std::int64_t past = range.last < whole.firstReading
                                  ? from
                                  : std::min<std::int64_t>(entryOf(range.last) + 1, whole.entries);
    return {whole.start + from * interval, std::max<std::int64_t>(past - from, 0),
            whole.firstReading + static_cast<int>(from) * stride};
}

std::string unitWord(const FileFacts& info) {
    return info.unit() == 'V' ? "volts" : "amps";
}

std::string spanText(const Stretch& stretch, int interval) {
    return screenTime(stretch.start) + " to " + screenTime(stretch.end(interval) - interval);
}

// Why a file cannot stand beside the first one.
std::optional<Refusal> misfit(const FileFacts& first, const FileFacts& other) {
    const ModeRow& mode = modeRow(first.modeLetter);
    if (other.unit() != first.unit())
        return Refusal{axisOtherUnit, other.path,
                       "It holds " + unitWord(other) + ", " + first.path + " " + unitWord(first) + "."};
    if (modeRow(other.modeLetter).minutes != mode.minutes ||
        valuesPerInterval(other.modeLetter) != valuesPerInterval(first.modeLetter))
        return Refusal{axisOtherInterval, other.path, {}};
    return {};
}

Refusal nothingCommon(const FileFacts& info, const Stretch& first, const Stretch& other, int interval) {
    return {axisNothingCommon, info.path,
            "It runs from " + spanText(other, interval) + ", the first from " + spanText(first, interval) +
                "."};
}

// Cuts the common stretch down to what another file has of it; why it has nothing, or cannot have.
std::optional<Refusal> cutTo(const FileFacts& info, const Stretch& other, const Stretch& ofFirst,
                             int interval, Stretch& common) {
    if (other.entries == 0)
        return Refusal{axisNoTriple, info.path, {}};
    if ((other.start.minutes - ofFirst.start.minutes) % interval != 0)
        return Refusal{axisOffset, info.path,
                       "It starts at " + screenTime(other.start) + ", the first at " +
                           screenTime(ofFirst.start) + ", and readings are " + std::to_string(interval) +
                           " minutes apart."};
    const ReadingTime end = std::min(common.end(interval), other.end(interval));
    common.start = std::max(common.start, other.start);
    if (end <= common.start)
        return nothingCommon(info, ofFirst, other, interval);
    common.entries = (end.minutes - common.start.minutes) / interval;
    return {};
}

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

Expected<TimeAxis> timeAxis(const std::vector<FileFacts>& files, std::optional<Range> range) {
    const FileFacts& info = files.front();
    const int interval = modeRow(info.modeLetter).minutes;
    const int stride = valuesPerInterval(info.modeLetter);
    Stretch common = wholeFile(info, stride);
    if (range)
        common = narrowed(common, *range, stride, interval);
    if (common.entries == 0)
        return refuse(range && range->entries() == 0 ? axisNothingCommon : axisNoTriple, info.path);
    const Stretch ofFirst = common;
    for (std::size_t i = 1; i < files.size(); ++i) {
        auto refusal = misfit(info, files[i]);
        if (!refusal)
            refusal = cutTo(files[i], wholeFile(files[i], stride), ofFirst, interval, common);
        if (refusal)
            return tl::make_unexpected(std::move(*refusal));
    }
    TimeAxis axis{common.start, interval, static_cast<int>(common.entries), stride, {}};
    for (const FileFacts& file : files) {
        const Stretch whole = wholeFile(file, stride);
        const auto entry = (common.start.minutes - whole.start.minutes) / interval;
        axis.first.push_back(whole.firstReading + static_cast<int>(entry) * stride);
    }
    return axis;
}

Expected<TimeAxis> timeAxis(const Recordings& recordings, std::optional<Range> range) {
    const auto begin = recordings.gInfo.begin();
    return timeAxis(std::vector<FileFacts>(begin, begin + recordings.openCount()), range);
}

std::string startsApart(const std::string& file, const std::string& first, std::int64_t minutes) {
    if (minutes == 0)
        return {};
    return file + " starts " + lengthText(std::abs(minutes)) + (minutes > 0 ? " after " : " before ") +
           first + "; readings are combined by number, not by time";
}

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
