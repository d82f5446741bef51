// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Kept.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace tally::archive {

// What a tenth counts as where finer readings were averaged: every number of readings that may lie in an
// interval of 15 minutes divides it, so that no mean is rounded.
inline constexpr std::int64_t fineScale = 360360;

// One recording's part in the load of its circuit.
struct Part {
    const Entry* entry = nullptr;
    Load load;
};

struct CircuitPoint {
    std::int64_t slot = 0;  // which interval since 1970-01-01 00:00 it lies in
    ReadingTime at;         // of the reading, or the slot's beginning where finer readings were averaged
    std::int64_t value = 0; // tenths times the scale
    std::int64_t high = 0;  // the maximum of the interval
    Id from = 0;
};

// The load of one circuit over all its recordings, in order of time. Recordings of a finer interval are
// averaged into the coarsest; of two readings at one time the one of the recording added first counts.
struct CircuitLoad {
    int interval = 15;
    std::int64_t scale = 1;
    std::vector<CircuitPoint> points;

    double value(std::int64_t scaled) const {
        return static_cast<double>(scaled) / static_cast<double>(scale * 10);
    }
};

// `interval`: the coarsest, which all others are parts of; `scaled`: count in fineScale whatever the parts.
CircuitLoad circuitLoadOf(std::vector<Part> parts, int interval, bool scaled = false);

// The figures of some consecutive points, and which recording the highest one is from.
struct CircuitFigures {
    Figures figures;
    std::int64_t scale = 1;
    Id highestFrom = 0;
};
CircuitFigures figuresOf(const CircuitLoad& load, std::size_t first, std::size_t count);

// Recordings of one circuit. Circuits are told apart by station and circuit name, upper and lower case alike;
// a recording without circuit stands alone.
using Circuit = std::vector<const Entry*>;
// In the order of the entries. Of a circuit with amperes and volts only the amperes.
std::vector<Circuit> circuitsOf(std::span<const Entry> entries, const ArchiveTools& tools);

// Whether each recording's own figures may simply be put together: one interval, no two at the same time, no
// demand window that two of them share. `circuit` is put in order of time.
bool standApart(Circuit& circuit);

int coarsestOf(const Circuit& circuit);

} // namespace tally::archive
