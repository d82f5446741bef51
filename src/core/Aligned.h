// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/TimeAxis.h"

namespace tally {

// The files cut to a common time axis of theirs: reading i of each stands for the same time. Facts that speak
// of the whole file stay, save count and start; what was forced outside the axis is left out.
Recordings aligned(const Recordings& recordings, const TimeAxis& axis);

} // namespace tally
