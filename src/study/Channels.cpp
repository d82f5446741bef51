// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Channels.h"

#include "core/Fault.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tally::study {

namespace {

// Places of the three values of a Min/Max/Avg recording.
constexpr int averageAt = 0;
constexpr int maximumAt = 1;
constexpr int minimumAt = 2;

std::vector<std::int32_t> valuesOf(const std::vector<std::int16_t>& readings, const TimeAxis& axis, int file,
                                   int offset) {
    std::vector<std::int32_t> values(static_cast<std::size_t>(axis.points));
    auto reading = static_cast<std::size_t>(axis.reading(file, 0, offset));
    for (std::int32_t& value : values) {
        value = readings[reading];
        reading += static_cast<std::size_t>(axis.stride);
    }
    return values;
}

std::string freeName(const std::string& name, const std::vector<Channel>& taken) {
    std::string free = name;
    const auto isTaken = [&](const Channel& channel) { return channel.name == free; };
    for (int number = 2; std::any_of(taken.begin(), taken.end(), isTaken); ++number)
        free = name + " (" + std::to_string(number) + ")";
    return free;
}

} // namespace

std::vector<Channel> fileChannels(const Recordings& recordings, const TimeAxis& axis) {
    std::vector<Channel> channels;
    for (int file = 0; file < static_cast<int>(axis.first.size()); ++file) {
        const FileFacts& info = recordings.info(file);
        const auto& readings = recordings.gReadings[static_cast<std::size_t>(file)];
        Channel channel;
        channel.name = freeName(fileNameOf(info.path), channels);
        channel.unit = info.unit() == 'V' ? Unit::volts : Unit::amps;
        channel.loads = valuesOf(readings, axis, file, averageAt);
        if (axis.stride > 1) {
            channel.maxima = valuesOf(readings, axis, file, maximumAt);
            channel.minima = valuesOf(readings, axis, file, minimumAt);
        }
        channels.push_back(std::move(channel));
    }
    return channels;
}

Channel powerChannel(const std::vector<Channel>& files, const PowerScale& scale) {
    std::vector<std::vector<std::int16_t>> currents;
    std::vector<std::span<const std::int16_t>> spans;
    currents.reserve(files.size());
    for (const Channel& file : files) {
        auto& current = currents.emplace_back(file.loads.size());
        std::transform(file.loads.begin(), file.loads.end(), current.begin(),
                       [](std::int32_t load) { return static_cast<std::int16_t>(load); });
        spans.emplace_back(current);
    }
    Channel power;
    power.name = "power";
    power.unit = Unit::kilowatts;
    power.scale = scale;
    power.files = static_cast<int>(files.size());
    power.loads = summedCurrents(spans, files.front().loads.size());
    const auto [minimum, maximum] = std::minmax_element(power.loads.begin(), power.loads.end());
    for (const std::int32_t end : {*minimum, *maximum})
        if (!std::isfinite(power.value(end)))
            throw fault::overflow();
    return power;
}

} // namespace tally::study
