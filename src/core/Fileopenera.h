// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DataText.h"
#include "core/Files.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally {

inline constexpr std::string_view unknownFileError = "Unknown File Error; Check";

// Reads a data file for the load survey, which keeps no slot. Nothing on any failure, which is reported as
// unknownFileError.
std::optional<Recording> Fileopenera(const Files& files, const std::string& path);

} // namespace tally
