// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tally::study::testing {

inline ReadingTime on(int year, int month, int day, int hour = 0, int minute = 0) {
    return toReadingTime({year, month, day, hour, minute});
}

// A channel of amps with these loads (tenths).
inline Channel amps(std::vector<std::int32_t> loads, std::string name = "red.dat") {
    Channel channel;
    channel.name = std::move(name);
    channel.loads = std::move(loads);
    return channel;
}

inline Channel volts(std::vector<std::int32_t> loads) {
    Channel channel = amps(std::move(loads), "volts.dat");
    channel.unit = Unit::volts;
    return channel;
}

inline Axis axis(ReadingTime start, int interval, std::size_t points) {
    return {start, interval, points};
}

} // namespace tally::study::testing
