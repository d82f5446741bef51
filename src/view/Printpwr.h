// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <string>

namespace tally {

// Lays out the kilowatts of the last power plot as the power table in gTable, lines ended by CR LF, and gives
// its heading line. Draw the power plot first where `powerDrawn` is false; without one the table is empty.
std::string Printpwr(Recordings& recordings, const DisplayState& state);

} // namespace tally
