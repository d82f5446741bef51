// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/PowerValues.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tally::study {

enum class Unit { amps, volts, kilowatts };

// "A", "V", "kW".
std::string_view unitName(Unit unit);

// A recording on the common time axis, or the power of all of them. Loads are kept as whole numbers, so that
// they are compared exactly: tenths of the unit, of power the summed currents in tenths of amps, which the
// power goes up and down with.
struct Channel {
    std::string name;
    Unit unit = Unit::amps;
    std::vector<std::int32_t> loads;  // one a point
    std::vector<std::int32_t> maxima; // Min/Max/Avg recordings only: the extremes of each interval
    std::vector<std::int32_t> minima;
    PowerScale scale = {0, 0}; // power only
    int files = 0;             // power only: how many currents are summed

    bool isPower() const { return unit == Unit::kilowatts; }
    const std::vector<std::int32_t>& highs() const { return maxima.empty() ? loads : maxima; }
    const std::vector<std::int32_t>& lows() const { return minima.empty() ? loads : minima; }

    // A load in the channel's unit.
    double value(std::int32_t load) const;
    // The mean of some loads in the channel's unit; 0 of none.
    double mean(std::span<const std::int32_t> some) const;
};

} // namespace tally::study
