// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include "survey/Peaks.h"

#include <cmath>
#include <memory>
#include <string>

namespace tally::bench {

namespace {

// A station of the largest size.
std::shared_ptr<SurveyData> station() {
    auto survey = std::make_shared<SurveyData>();
    for (std::size_t feeder = 0; feeder < survey->feeders.size(); ++feeder)
        for (std::size_t phase = 0; phase < survey->feeders[feeder].size(); ++phase) {
            PhaseFile& file = survey->feeders[feeder][phase];
            file.facts.path = "phase.dat";
            for (int i = 0; i < Recordings::maximumReadings; ++i)
                file.readings.push_back(static_cast<std::int16_t>(
                    1200 + 900 * std::sin(i / 200.0 + static_cast<double>(feeder + phase)) + i * 7919 % 101));
        }
    survey->currentFeeder = feederCount - 1;
    return survey;
}

// Every reading looked at once.
int onePass(const SurveyData& survey) {
    int sum = 0;
    for (const FeederFiles& files : survey.feeders)
        for (const PhaseFile& file : files)
            for (const std::int16_t reading : file.readings)
                sum += reading;
    return sum;
}

} // namespace

void registerGoals() {
    const auto survey = station();
    goal(
        "survey-of-four-feeders",
        [survey] {
            for (std::size_t feeder = 0; feeder < survey->feeders.size(); ++feeder)
                survey->feederPeaks[feeder] = feederPeaksOf(survey->feeders[feeder]);
            findStationPeak(*survey);
            keep(survey->stationTotals.data());
        },
        [survey] { keep(onePass(*survey)); }, 4);
}

} // namespace tally::bench
