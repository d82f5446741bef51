// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Study.h"

#include "core/ModeTable.h"
#include "study/Channels.h"
#include "view/PlotSeries.h"
#include "view/Power.h"

namespace tally::study {

namespace {

Axis axisOf(const TimeAxis& axis) {
    return {axis.start, axis.interval, static_cast<std::size_t>(axis.points)};
}

PowerScale scaleOf(const PowerBase& power) {
    const auto factor = static_cast<float>(power.factor);
    return {static_cast<float>(power.volts / 1000), factor == 0.0F ? 1.0F : factor};
}

// Names the forced readings of a file that take part.
void addForced(FileBasis& basis, const Recordings& recordings, const TimeAxis& axis, int file) {
    const Range range = {axis.reading(file, 0), axis.reading(file, axis.points - 1, axis.stride - 1)};
    std::vector<std::pair<int, int>> runs;
    for (int offset = 0; offset < axis.stride; ++offset)
        for (const auto& run : forcedRuns(recordings, file, range, axis.stride, offset))
            runs.push_back(run);
    runs = mergedRuns(std::move(runs));
    basis.forced = recordings.info(file).forced;
    if (runs.empty()) {
        basis.forced = basis.forced && recordings.forcedEdits.at(static_cast<std::size_t>(file)).empty();
        return;
    }
    for (const auto& [first, last] : runs)
        basis.forcedReadings += last - first + 1;
    basis.firstForced = axis.timeOf(runs.front().first);
    basis.lastForced = axis.timeOf(runs.back().second);
}

FileBasis basisOf(const FileFacts& info, const TimeAxis& axis, int file, const std::string& name) {
    FileBasis basis;
    basis.name = name;
    basis.path = info.path;
    basis.serial = info.serial;
    basis.unreadable = info.unreadable;
    basis.complete = info.complete;
    basis.minMaxAvg = isMinMaxAvg(info.modeLetter);
    basis.entries = info.count / axis.stride;
    basis.oddTriple = info.count % axis.stride != 0;
    basis.before = (axis.reading(file, 0) - info.count % axis.stride) / axis.stride;
    basis.after = basis.entries - basis.before - axis.points;
    return basis;
}

ChannelFigures figuresOf(const Channel& channel, const Axis& axis, const StudyOptions& options) {
    return {levelOf(channel, axis), demandOf(channel, axis, options.window), durationOf(channel),
            limitsOf(channel, axis, options.high, options.low),
            typicalDaysOf(channel, axis, options.holidays)};
}

std::optional<Refusal> refusalOf(const Recordings& recordings, const StudyOptions& options) {
    if (options.capacity && recordings.info(0).unit() == 'V')
        return Refusal{capacityOfVolts};
    if (!options.power)
        return {};
    const auto power = checkPower(recordings);
    return power ? std::nullopt : std::optional(power.error());
}

} // namespace

int Study::days() const {
    return static_cast<int>(dayOf(axis.at(axis.points - 1)) - dayOf(axis.start)) + 1;
}

Expected<Study> studyOf(const Recordings& recordings, std::optional<Range> range,
                        const StudyOptions& options) {
    const auto common = timeAxis(recordings, range);
    if (!common)
        return tl::make_unexpected(common.error());
    if (auto refusal = refusalOf(recordings, options))
        return tl::make_unexpected(std::move(*refusal));
    Study study;
    study.options = options;
    study.axis = axisOf(*common);
    study.channels = fileChannels(recordings, *common);
    study.files = study.channels.size();
    for (std::size_t file = 0; file < study.files; ++file) {
        const int slot = static_cast<int>(file);
        study.basis.push_back(basisOf(recordings.info(slot), *common, slot, study.channels[file].name));
        addForced(study.basis.back(), recordings, *common, slot);
    }
    if (options.power)
        study.channels.push_back(powerChannel(study.channels, scaleOf(*options.power)));
    for (const Channel& channel : study.channels)
        study.figures.push_back(figuresOf(channel, study.axis, options));
    study.phases = phasesOf(study.fileChannels(), study.axis);
    study.diversity = diversityOf(study.fileChannels(), study.axis, options.window);
    if (options.capacity)
        study.capacity = capacityOf(study.fileChannels(), study.axis, *options.capacity);
    study.flags = flagsOf(study.fileChannels(), study.axis);
    return study;
}

Expected<LoadSeries> loadSeries(const Recordings& recordings, std::optional<Range> range) {
    const auto axis = timeAxis(std::vector<FileFacts>{recordings.info(0)}, range);
    if (!axis)
        return tl::make_unexpected(axis.error());
    return LoadSeries{axisOf(*axis), fileChannels(recordings, *axis).front()};
}

} // namespace tally::study
