// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "survey/SurveyData.h"

#include <cstdio>
#include <string>
#include <vector>

namespace tally::testing {

using Tenths = std::vector<std::int16_t>;

// Loads the three phases of a feeder without a file; the survey has come as far as this feeder.
inline void fillFeeder(SurveyData& survey, int feeder, const Tenths& red, const Tenths& white,
                       const Tenths& blue, ReadingTime start = toReadingTime({2024, 3, 15, 14, 0})) {
    FeederFiles& files = survey.feeders.at(static_cast<std::size_t>(feeder));
    const Tenths* phases[] = {&red, &white, &blue};
    for (std::size_t phase = 0; phase < files.size(); ++phase) {
        files[phase].facts.path = "f" + std::to_string(feeder) + "p" + std::to_string(phase) + ".dat";
        files[phase].facts.modeLetter = 'a';
        files[phase].facts.start = start;
        files[phase].facts.count = static_cast<int>(phases[phase]->size());
        files[phase].readings = *phases[phase];
    }
    survey.feederNames.at(static_cast<std::size_t>(feeder)) = "Feeder" + std::to_string(feeder + 1);
    survey.currentFeeder = feeder;
}

// The bytes of a LOW data file of tenths (0 to 9999), oldest first. Reading 0 lies count + 1 intervals before
// the header time.
inline std::string dataFile(const Tenths& tenths, char mode = 'a',
                            const std::string& headerTime = "03-15-24 14:00") {
    std::string text =
        std::string("PQX") + mode + "   1234" + std::string(19, ' ') + headerTime + "   Vbatt 3E8\r";
    for (auto value = tenths.rbegin(); value != tenths.rend(); ++value) {
        char field[16];
        std::snprintf(field, sizeof field, "%3d.%d", *value / 10, *value % 10);
        text += field;
    }
    return text + "\x1a";
}

} // namespace tally::testing
