// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/Runspec.h"

#include <string>

namespace tally {

// Plants the faults whose flags are set in a received text, fault k on line k of the data section. Says so
// and stops when the text has no "T:".
void InsertErrors(std::string& gText, const RunFlags& flags, Prompt& prompt);

} // namespace tally
