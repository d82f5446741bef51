// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DataText.h"
#include "core/Files.h"
#include "core/Refusal.h"

#include <string>

namespace tally {

inline constexpr const char* unknownFileError = "Unknown File Error; Check";

// Reads a data file for the load survey, which keeps no slot. Every refusal has the text unknownFileError.
Expected<Recording> Fileopenera(const Files& files, const std::string& path);

} // namespace tally
