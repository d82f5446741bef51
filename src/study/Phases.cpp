// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Phases.h"

#include "study/Ranks.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace tally::study {

namespace {

constexpr std::size_t phaseCount = 3;

std::int64_t sumAt(std::span<const Channel> files, std::size_t point) {
    return std::int64_t{files[0].loads[point]} + files[1].loads[point] + files[2].loads[point];
}

// With S the sum of the three, the distance of x from the mean S/3 over the mean is |3x − S| / S. One
// division of whole numbers: equal unbalances are equal numbers.
double unbalanceAt(std::span<const Channel> files, std::size_t point, std::int64_t sum) {
    std::int64_t greatest = 0;
    for (const Channel& file : files)
        greatest = std::max<std::int64_t>(greatest, std::abs(3 * std::int64_t{file.loads[point]} - sum));
    return static_cast<double>(100 * greatest) / static_cast<double>(sum);
}

std::size_t fullestPoint(std::span<const Channel> files, std::size_t points) {
    std::size_t fullest = 0;
    for (std::size_t point = 1; point < points; ++point)
        if (sumAt(files, point) > sumAt(files, fullest))
            fullest = point;
    return fullest;
}

void addUnbalance(Phases& phases, std::span<const Channel> files, const Axis& axis) {
    const std::size_t fullest = fullestPoint(files, axis.points);
    const std::int64_t highest = sumAt(files, fullest);
    Unbalance& unbalance = phases.unbalance;
    phases.unbalances.resize(axis.points);
    std::vector<double> counted;
    for (std::size_t point = 0; point < axis.points; ++point) {
        const std::int64_t sum = sumAt(files, point);
        if (sum <= 0 || 10 * sum < highest)
            continue;
        const double percent = unbalanceAt(files, point, sum);
        phases.unbalances[point] = percent;
        counted.push_back(percent);
        if (!unbalance.max || percent > unbalance.max->value)
            unbalance.max = {percent, axis.at(point)};
    }
    unbalance.counted = counted.size();
    if (counted.empty())
        return;
    unbalance.mean =
        std::accumulate(counted.begin(), counted.end(), 0.0) / static_cast<double>(counted.size());
    unbalance.p95 = percentile(std::span(counted), 95);
    unbalance.atPeak = phases.unbalances[fullest];
}

void addNeutral(Phases& phases, std::span<const Channel> files, const Axis& axis) {
    Neutral neutral;
    std::int64_t highest = -1;
    double sum = 0;
    for (std::size_t point = 0; point < axis.points; ++point) {
        const std::int64_t a = files[0].loads[point];
        const std::int64_t b = files[1].loads[point];
        const std::int64_t c = files[2].loads[point];
        const std::int64_t squared = a * a + b * b + c * c - a * b - b * c - c * a;
        const double amps = std::sqrt(static_cast<double>(squared)) / 10;
        phases.neutrals.push_back(amps);
        sum += amps;
        if (squared > highest) {
            highest = squared;
            neutral.max = {amps, axis.at(point)};
        }
    }
    neutral.mean = sum / static_cast<double>(axis.points);
    phases.neutral = neutral;
}

} // namespace

std::optional<Phases> phasesOf(std::span<const Channel> files, const Axis& axis) {
    if (files.size() != phaseCount)
        return std::nullopt;
    Phases phases;
    addUnbalance(phases, files, axis);
    if (files.front().unit == Unit::amps)
        addNeutral(phases, files, axis);
    return phases;
}

} // namespace tally::study
