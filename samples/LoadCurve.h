// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <array>
#include <cstdint>

namespace tally::samples {

// Numbers that look random and are the same on every machine.
class Noise {
public:
    explicit Noise(std::uint32_t seed) : state_(seed) {}
    // -1 to 1, small values more often.
    double next() { return one() * one(); }
    // -1 to 1, evenly.
    double one();

private:
    std::uint32_t state_;
};

// Load through a day, hour by hour, as a share of the highest.
using DayCurve = std::array<double, 24>;

// What is connected to a feeder.
struct Feeder {
    double amps;     // at the highest hour of a working day
    double homes;    // share of homes, 0 to 1; the rest is shops and workshops
    double restless; // how far single readings stray, as a share
    std::uint32_t seed;
};

// The load of a feeder at a time, without noise: homes peak in the evening and at weekends around noon, shops
// work from Monday to Saturday noon.
double steadyLoad(const Feeder& feeder, ReadingTime time);

} // namespace tally::samples
