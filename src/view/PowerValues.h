// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/Range.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tally {

// Kilovolts and power factor, single precision.
struct PowerScale {
    float kilovolts;
    float factor;
};

// Kilowatts over a range of the open files, with what is derived from their currents.
struct PowerValues {
    std::vector<float> kilowatts; // entry 0 is the first reading of the range
    double sumAfterFirst = 0;     // of all kilowatts but the first
    float smallest = 0;           // combined current, tenths of amps; with three files the mean times 1.732
    float largest = 0;            // summed current, tenths of amps
    std::int32_t smallestSum = 0; // summed current at `smallest`, tenths of amps
};

// The currents of one to three files summed place by place (tenths of amps), `count` of them; a file that
// ends before counts as 0 there. Throws Overflow when three currents sum beyond 16 bits.
std::vector<std::int32_t> summedCurrents(std::span<const std::span<const std::int16_t>> files,
                                         std::size_t count);

// Kilowatts of the summed currents (tenths of amps) of this many files.
float kilowattsOf(std::int32_t sum, int files, const PowerScale& scale);

// Throws Overflow when three currents sum beyond 16 bits or a kilowatt value beyond single precision.
PowerValues powerValues(const Recordings& recordings, const Range& range, const PowerScale& scale);

} // namespace tally
