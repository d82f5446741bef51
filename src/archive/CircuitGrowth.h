// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Questions.h"
#include "core/Refusal.h"

#include <array>
#include <string>
#include <vector>

namespace tally::archive {

// How the load of a recording's circuit grew.
struct CircuitGrowth {
    std::string station;
    std::string circuit;
    char unit = 'A';
    int recordings = 0;
    std::vector<YearOfLoad> years;
};

// Over all recordings of the circuit that a recording is of, at its station and in its unit. Refused for a
// recording without circuit.
Expected<CircuitGrowth> circuitGrowthOf(ArchiveStore& store, const ArchiveTools& tools, const Entry& entry);

// What a table shows of a year: year, peak, mean, days, change in %.
std::array<std::string, 5> yearTexts(const YearOfLoad& year);

} // namespace tally::archive
