// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "view/Display.h"
#include "view/Power.h"

namespace tally {

// Lays out the kilowatts of a power as the power table. Throws Subscript out of range when no file is open.
Table Printpwr(const Recordings& recordings, const Power& power);

} // namespace tally
