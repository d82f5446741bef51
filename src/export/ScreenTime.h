// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <string_view>

namespace tally {

// Reads "hh:mm  MMM dd, yy" at the beginning of a text of at least 17 characters. Throws Type mismatch when
// it is no date.
ReadingTime parseScreenTime(std::string_view text);

} // namespace tally
