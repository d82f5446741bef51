// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"

#include <string>

namespace tally {

// Gives a received text whose header holds no time the time of its last reading, counted from the date of the
// field initialization that the user enters. False when the user enters none.
bool completeHeaderTime(std::string& gText, Prompt& prompt);

} // namespace tally
