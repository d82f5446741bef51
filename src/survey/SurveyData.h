// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tally {

inline constexpr int feederCount = 4;
inline constexpr int phaseCount = 3; // red, white, blue

// One phase file that was read whole; without a path it is not loaded.
struct PhaseFile {
    FileFacts facts;
    std::vector<std::int16_t> readings; // tenths, oldest first
    bool loaded() const { return !facts.path.empty(); }
};

using FeederFiles = std::array<PhaseFile, phaseCount>;
using PhaseCurrents = std::array<std::int16_t, phaseCount>; // tenths of amps

// The moment at which one phase of a feeder carried its highest current.
struct PhasePeak {
    int index = 0;
    PhaseCurrents currents{}; // of all phases at that moment
    float sum = 0;            // of the three, tenths of amps
    ReadingTime time;
};
using FeederPeaks = std::array<PhasePeak, phaseCount>;

// The moment at which the station carried its highest current.
struct StationPeak {
    int index = 0;
    std::int16_t total = 0; // tenths of amps
    ReadingTime time;
    std::array<std::optional<PhaseCurrents>, feederCount> feeders; // those that are part of it
    std::vector<int> leftOut; // feeders 0 to 3 that are loaded, but stand after the current one
};

// What a load survey keeps while the application runs. A new survey begins with an empty one.
struct SurveyData {
    std::string stationName; // upper case (UTF-8)
    std::array<FeederFiles, feederCount> feeders;
    std::array<std::string, feederCount> feederNames; // UTF-8
    int currentFeeder = 0;
    int phasesLoaded = 0; // of the current feeder
    std::array<std::optional<FeederPeaks>, feederCount> feederPeaks;
    std::vector<float> stationTotals; // tenths of amps for each reading scanned
    std::optional<StationPeak> stationPeak;
    std::vector<std::string> notices; // what is unusual about the files taken (UTF-8)

    bool isLoaded(int feeder) const; // all three phases of it
};

} // namespace tally
