// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Settings.h"

#include <string>
#include <vector>

namespace tally {

// The line voltages entered last, newest first, for the list of the voltage box; the default when there are
// none.
std::vector<std::string> lastVoltages(const Settings& settings);

// Puts an entry first and keeps the newest five. Entries that are no positive number are not kept.
void rememberVoltage(Settings& settings, const std::string& entry);

} // namespace tally
