// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Recordings.h"
#include "view/DisplayState.h"
#include "view/LineVoltage.h"
#include "view/Plot.h"

#include <string>
#include <string_view>

namespace tally {

enum class PowerRefusal { none, notAmps, notAverage };

// Whether the open files can be shown as power; the last file that fails decides which refusal it is.
PowerRefusal checkPower(const Recordings& recordings);
// The text of the message box; empty for none.
std::string_view refusalText(PowerRefusal refusal);

// What Power View > Power Plot resets before it draws: the whole first file, no span, not on one page, no y
// scale; the power plot becomes the current view.
void startPower(Recordings& recordings, DisplayState& state);

// Works out power, energy and extremes of the displayed range at a line voltage in volts, and the power plot.
// Refused or thrown (Overflow; Subscript out of range with no file), nothing has changed. A power factor of 0
// becomes 1.0. The first line of the title is the power title line.
PowerRefusal DisplPlotPwr(Recordings& recordings, DisplayState& state, double volts, const Clock& clock,
                          Plot& out);

// startPower and DisplPlotPwr as one step: refused or thrown, the range and the flags stay as they were too.
PowerRefusal viewPower(Recordings& recordings, DisplayState& state, double volts, const Clock& clock,
                       Plot& out);

// The power title line alone.
std::string powerTitle(const Recordings& recordings, double volts);

} // namespace tally
