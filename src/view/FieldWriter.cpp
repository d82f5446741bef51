// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FieldWriter.h"

#include "core/Numbers.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstring>

namespace tally {

namespace {

constexpr std::string_view fieldGap = "  ";
// Beyond this, scaled values are left to Format.
constexpr double mostScaled = 4.0e9;

} // namespace

FieldWriter::FieldWriter(std::string_view pattern) : pattern_(pattern) {
    const auto first = pattern.find_first_of("0.");
    const auto last = pattern.find_last_of("0.");
    const auto places = pattern.substr(first, last - first + 1);
    const std::string after = std::string(pattern.substr(last + 1)).append(fieldGap);
    decimal_ = places.find('.') != std::string_view::npos;
    leastDigits_ = places.size() - (decimal_ ? 2 : 0);
    beforeSize_ = first;
    afterSize_ = after.size();
    assert(beforeSize_ <= before_.size() && afterSize_ <= after_.size());
    std::copy_n(pattern.begin(), beforeSize_, before_.begin());
    std::copy_n(after.begin(), afterSize_, after_.begin());
}

char* FieldWriter::lead(char* to, bool negative) const {
    std::memcpy(to, before_.data(), before_.size());
    to += beforeSize_;
    if (negative)
        *to++ = '-';
    return to;
}

char* FieldWriter::trail(char* to) const {
    std::memcpy(to, after_.data(), after_.size());
    return to + afterSize_;
}

char* FieldWriter::digits(char* to, std::uint32_t whole) const {
    if (leastDigits_ == 3 && whole < 1000) {
        *to++ = static_cast<char>('0' + whole / 100);
        *to++ = static_cast<char>('0' + whole / 10 % 10);
        *to++ = static_cast<char>('0' + whole % 10);
        return to;
    }
    std::array<char, 10> reversed;
    std::size_t size = 0;
    for (; whole != 0 || size < leastDigits_; whole /= 10)
        reversed[size++] = static_cast<char>('0' + whole % 10);
    while (size != 0)
        *to++ = reversed[--size];
    return to;
}

char* FieldWriter::writeTenths(char* to, bool negative, std::uint32_t tenths) const {
    to = digits(lead(to, negative && tenths != 0), tenths / 10);
    *to++ = '.';
    *to++ = static_cast<char>('0' + tenths % 10);
    return trail(to);
}

char* FieldWriter::writeWhole(char* to, bool negative, std::uint32_t whole) const {
    return trail(digits(lead(to, negative && whole != 0), whole));
}

char* FieldWriter::write(char* to, std::int16_t tenths) const {
    const bool negative = tenths < 0;
    const auto size = static_cast<std::uint32_t>(negative ? -std::int32_t{tenths} : std::int32_t{tenths});
    return decimal_ ? writeTenths(to, negative, size) : writeWhole(to, negative, (size + 5) / 10);
}

char* FieldWriter::write(char* to, float value) const {
    const bool negative = value < 0;
    const double scaled = std::fabs(static_cast<double>(value)) * (decimal_ ? 10 : 1);
    if (scaled < mostScaled) {
        const double whole = std::floor(scaled);
        const double part = scaled - whole;
        // Format rounds the shortest decimal text of the value, which lies within half a unit of its last
        // binary place: further than that from the half, both round the same way.
        if (std::fabs(part - 0.5) > scaled * 6.0e-8) {
            const auto rounded = static_cast<std::uint32_t>(whole) + (part > 0.5 ? 1U : 0U);
            return decimal_ ? writeTenths(to, negative, rounded) : writeWhole(to, negative, rounded);
        }
    }
    const std::string text = Format(value, pattern_).append(fieldGap);
    return std::copy(text.begin(), text.end(), to);
}

} // namespace tally
