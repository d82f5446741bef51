// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Recordings.h"
#include "view/DisplayState.h"
#include "view/Power.h"
#include "view/ShownRange.h"

namespace tally {

// What the metering report covers: the applied span, else the whole first file.
ShownRange reportRange(const Recordings& recordings, const DisplayState& state);

// Whether the kilowatts of the last power plot cover a range.
bool powerCovers(const DisplayState& state, const ShownRange& range);

// Works out the kilowatts of the report's range at a line voltage in volts, as a power plot would leave them;
// what is shown stays as it is. Refused or thrown (Overflow), nothing has changed.
PowerRefusal powerForReport(Recordings& recordings, DisplayState& state, double volts, const Clock& clock);

} // namespace tally
