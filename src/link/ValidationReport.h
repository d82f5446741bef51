// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/Runspec.h"
#include "link/Validation.h"

#include <string>

namespace tally {

// The error message with its question; empty when clean.
std::string errorReport(const ValidationCounts& counts);
// The message about readings of 999; empty when there were none.
std::string report999(const ValidationCounts& counts, bool changed);

// Plants the faults asked for, scans, reports and asks; whether the text is kept.
bool judgeDownload(std::string& gText, const RunFlags& flags, Prompt& prompt);

} // namespace tally
