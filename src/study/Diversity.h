// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

#include <optional>
#include <span>

namespace tally::study {

// How far the peaks of two or three circuits of one voltage fall apart, by their block demands in amps:
// diversity factor = sum of each one's highest demand / highest sum of one window; the coincidence factor is
// its inverse. Nothing that would divide by 0, and nothing at all without a complete window.
struct Diversity {
    std::optional<double> sumOfPeaks;
    std::optional<LoadAt> peakOfSum;
    std::optional<double> diversityFactor;
    std::optional<double> coincidenceFactor;
};

// Nothing for one file and for volts.
std::optional<Diversity> diversityOf(std::span<const Channel> files, const Axis& axis, int window);

} // namespace tally::study
