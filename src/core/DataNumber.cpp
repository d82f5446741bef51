// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataNumber.h"

#include <cstddef>
#include <limits>

namespace tally {

namespace {

constexpr int beyond = 1000000; // tenths; far outside 16 bits, and adding a digit to it cannot overflow

int digitAt(std::string_view text, std::size_t at) {
    const char c = at < text.size() ? text[at] : '\0';
    return c >= '0' && c <= '9' ? c - '0' : -1;
}

// Whether the digits after the tenths round up; leaves `at` after them.
bool roundsUp(std::string_view item, std::size_t& at, bool odd) {
    const int first = digitAt(item, at);
    if (first < 0)
        return false;
    bool rest = false;
    for (++at; digitAt(item, at) >= 0; ++at)
        rest = rest || item[at] != '0';
    if (first != 5)
        return first > 5;
    return rest || odd;
}

} // namespace

DataNumber readDataNumber(std::string_view item) {
    std::size_t at = 0;
    const bool negative = !item.empty() && item[0] == '-';
    if (!item.empty() && (item[0] == '-' || item[0] == '+'))
        ++at;
    int tenths = 0;
    bool digits = false;
    for (int digit = 0; (digit = digitAt(item, at)) >= 0; ++at) {
        digits = true;
        tenths = tenths >= beyond ? beyond : (tenths + digit) * 10;
    }
    if (at < item.size() && item[at] == '.') {
        ++at;
        if (const int digit = digitAt(item, at); digit >= 0) {
            digits = true;
            ++at;
            tenths += digit;
            tenths += roundsUp(item, at, tenths % 2 != 0) ? 1 : 0;
        }
    }
    if (!digits)
        return {};
    if (negative)
        tenths = -tenths;
    DataNumber number;
    number.whole = at == item.size();
    number.fits = tenths >= std::numeric_limits<std::int16_t>::min() &&
                  tenths <= std::numeric_limits<std::int16_t>::max();
    if (number.fits)
        number.tenths = static_cast<std::int16_t>(tenths);
    return number;
}

} // namespace tally
