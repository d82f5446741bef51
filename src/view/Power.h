// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Recordings.h"
#include "core/Refusal.h"
#include "view/Display.h"
#include "view/LineVoltage.h"
#include "view/Plot.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tally {

inline constexpr std::string_view powerNotAmps = "Files must all be amps for power to plot";
inline constexpr std::string_view powerNotAverage = "Files must be average mode for power to plot";

// Whether the open files can be shown as power; the last file that fails decides which refusal it is.
Expected<void> checkPower(const Recordings& recordings);

// The power of a range of the open files, all of it from one computation.
struct Power {
    Range range;                  // of the first file
    PowerBasis basis;             // what it was worked out with
    std::vector<float> kilowatts; // entry 0 is the reading at range.first
    std::string energyText;       // "12,345 KWHR"; the first reading is left out
    std::int16_t extremeMin = 0;  // tenths of amps; with three files the mean times 1.732 ...
    std::int16_t extremeMax = 0;  // ... and here the plain sum
    std::int32_t smallestSum = 0; // summed current, tenths of amps
};

// Throws Overflow, and Subscript out of range with no file.
Expected<Power> powerOf(const Recordings& recordings, const Range& range, const PowerBasis& basis);

// The energy of a range as a text; empty where the files give no power.
std::string energyOf(const Recordings& recordings, const Range& range, const PowerBasis& basis);

// The power plot; the power is that of the request's range. The first line of the title is the power title
// line.
Plot DisplPlotPwr(const Recordings& recordings, const PlotRequest& request, const Power& power,
                  const Clock& clock);

// The power title line alone.
std::string powerTitle(const Recordings& recordings, const PowerBasis& basis);

// Files, voltage, power factor and times that a power was worked out from, for the status line.
std::string powerSource(const Recordings& recordings, const Power& power);

} // namespace tally
