// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Decimal.h"

#include "core/Numbers.h"

#include <algorithm>
#include <cmath>

namespace tally::study {

namespace {

// Far beyond every reading; what is larger compares the same.
constexpr std::int64_t maximumTenths = 1000000000;

bool areDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::int64_t wholeTenths(std::string_view digits, std::string_view fraction) {
    std::int64_t tenths = 0;
    for (const char digit : digits)
        tenths = std::min(tenths * 10 + (digit - '0'), maximumTenths);
    const int first = fraction.empty() ? 0 : fraction.front() - '0';
    return std::min(tenths * 10 + first, maximumTenths);
}

} // namespace

std::optional<Decimal> decimalOf(std::string_view text) {
    std::string_view rest = text;
    const bool negative = rest.substr(0, 1) == "-";
    if (negative || rest.substr(0, 1) == "+")
        rest.remove_prefix(1);
    const auto point = std::min(rest.find('.'), rest.size());
    const std::string_view digits = rest.substr(0, point);
    const std::string_view fraction = rest.substr(std::min(point + 1, rest.size()));
    if (digits.size() + fraction.size() == 0 || !areDigits(digits) || !areDigits(fraction))
        return std::nullopt;
    const double value = Val(rest);
    if (!std::isfinite(value))
        return std::nullopt;
    const std::int64_t down = wholeTenths(digits, fraction);
    const bool between = std::any_of(fraction.begin() + (fraction.empty() ? 0 : 1), fraction.end(),
                                     [](char c) { return c != '0'; });
    const std::int64_t up = down + (between ? 1 : 0);
    return negative ? Decimal{-value, -up, -down} : Decimal{value, down, up};
}

} // namespace tally::study
