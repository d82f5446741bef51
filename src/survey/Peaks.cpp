// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/Peaks.h"

#include "core/Fault.h"
#include "core/Numbers.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tally {

namespace {

using Readings = std::span<const std::int16_t>;

// The earliest of the highest values above 0, and where it stands; index 0 when there is none.
template <typename Value>
std::pair<std::size_t, Value> earliestHighest(std::span<const Value> values) {
    // Block by block, so that the highest is found without looking at each index.
    constexpr std::size_t blockSize = 2048;
    Value highest = 0;
    std::size_t block = 0;
    for (std::size_t from = 0; from < values.size(); from += blockSize) {
        Value inBlock = highest;
        for (const Value value : values.subspan(from, std::min(blockSize, values.size() - from)))
            inBlock = std::max(inBlock, value);
        if (inBlock > highest) {
            highest = inBlock;
            block = from;
        }
    }
    if (highest == 0)
        return {0, highest};
    const auto found = std::find(values.begin() + static_cast<std::ptrdiff_t>(block), values.end(), highest);
    return {static_cast<std::size_t>(found - values.begin()), highest};
}

std::size_t shortest(const FeederFiles& files) {
    std::size_t count = files[0].readings.size();
    for (const PhaseFile& file : files)
        count = std::min(count, file.readings.size());
    return count;
}

PhaseCurrents currentsAt(const FeederFiles& files, std::size_t index) {
    PhaseCurrents currents{};
    for (std::size_t phase = 0; phase < files.size(); ++phase)
        if (index < files[phase].readings.size())
            currents[phase] = files[phase].readings[index];
    return currents;
}

// Adds a feeder's totals to the station's. Throws Overflow when one is beyond 16 bits at either addition.
void addFeeder(std::vector<std::int32_t>& totals, const FeederFiles& files) {
    const std::size_t count = totals.size();
    const Readings red = Readings(files[0].readings).first(count);
    const Readings white = Readings(files[1].readings).first(count);
    const Readings blue = Readings(files[2].readings).first(count);
    std::uint32_t beyond = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::int32_t two = red[i] + white[i];
        const std::int32_t three = two + blue[i];
        beyond |= static_cast<std::uint32_t>(two + 0x8000) | static_cast<std::uint32_t>(three + 0x8000);
        totals[i] += three;
    }
    if (beyond > 0xFFFF)
        throw fault::overflow();
}

} // namespace

FeederPeaks feederPeaksOf(const FeederFiles& files) {
    const std::size_t count = shortest(files);
    FeederPeaks peaks;
    for (std::size_t phase = 0; phase < files.size(); ++phase) {
        const auto index = earliestHighest(Readings(files[phase].readings).first(count)).first;
        PhasePeak& peak = peaks[phase];
        peak.index = static_cast<int>(index);
        peak.currents = currentsAt(files, index);
        for (const std::int16_t current : peak.currents)
            peak.sum += static_cast<float>(current);
        peak.time = timeOf(files[phase].facts, peak.index);
    }
    return peaks;
}

bool coversFeeder(const SurveyData& survey, int feeder) {
    return feeder <= survey.currentFeeder && survey.isLoaded(feeder);
}

bool coversAnyFeeder(const SurveyData& survey) {
    for (int feeder = 0; feeder < feederCount; ++feeder)
        if (coversFeeder(survey, feeder))
            return true;
    return false;
}

void findStationPeak(SurveyData& survey) {
    std::vector<const FeederFiles*> covered;
    for (int feeder = 0; feeder < feederCount; ++feeder)
        if (coversFeeder(survey, feeder))
            covered.push_back(&survey.feeders[static_cast<std::size_t>(feeder)]);
    std::size_t count = shortest(*covered.front());
    for (const FeederFiles* files : covered)
        count = std::min(count, shortest(*files));

    std::vector<std::int32_t> totals(count);
    for (const FeederFiles* files : covered)
        addFeeder(totals, *files);
    const auto [index, highest] = earliestHighest(std::span<const std::int32_t>(totals));
    StationPeak peak;
    peak.index = static_cast<int>(index);
    peak.total = toInt16(highest);
    peak.time = timeOf(covered.front()->front().facts, peak.index);
    for (int feeder = 0; feeder < feederCount; ++feeder)
        if (coversFeeder(survey, feeder))
            peak.feeders[static_cast<std::size_t>(feeder)] =
                currentsAt(survey.feeders[static_cast<std::size_t>(feeder)], index);
        else if (survey.isLoaded(feeder))
            peak.leftOut.push_back(feeder);
    survey.stationTotals.resize(count);
    std::transform(totals.begin(), totals.end(), survey.stationTotals.begin(),
                   [](std::int32_t total) { return static_cast<float>(total); });
    survey.stationPeak = peak;
}

} // namespace tally
