// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tally::study {

// A number that a user typed: a sign, digits, a point and digits; nothing else ("nan", "1e3" and the empty
// text are none). Its tenths are worked out from the digits, so that a limit of 12.3 is exactly 123 tenths.
struct Decimal {
    double value = 0;
    std::int64_t tenthsDown = 0; // the highest whole number of tenths that is not above it
    std::int64_t tenthsUp = 0;   // the lowest one that is not below it
};

std::optional<Decimal> decimalOf(std::string_view text);

} // namespace tally::study
