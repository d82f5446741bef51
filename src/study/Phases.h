// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

#include <optional>
#include <span>
#include <vector>

namespace tally::study {

// Unbalance of three phases, percent: 100 · greatest distance of a phase from the mean of the three / that
// mean (NEMA MG 1). At light load it means nothing: only times whose mean is above 0 and at least 10 % of the
// highest mean count.
struct Unbalance {
    std::optional<LoadAt> max;
    std::optional<double> mean;
    std::optional<double> p95;
    std::optional<double> atPeak; // where the mean of the three is highest
    std::size_t counted = 0;      // times
};

// Current in the neutral, amps: √(A² + B² + C² − AB − BC − CA), for currents 120° apart of one power factor
// and without third harmonic.
struct Neutral {
    LoadAt max;
    double mean = 0;
};

struct Phases {
    Unbalance unbalance;
    std::optional<Neutral> neutral;                // amps only
    std::vector<std::optional<double>> unbalances; // at each point, percent; none where it does not count
    std::vector<double> neutrals;                  // at each point; none for volts
};

// Of three channels on one axis; nothing for another number of them.
std::optional<Phases> phasesOf(std::span<const Channel> files, const Axis& axis);

} // namespace tally::study
