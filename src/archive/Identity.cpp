// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Identity.h"

#include "core/ModeTable.h"

#include <algorithm>

namespace tally::archive {

namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr std::size_t nameDigits = 16;
constexpr std::size_t shaDigits = 64;

std::string hexOf(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += hexDigits[byte >> 4];
        text += hexDigits[byte & 0xF];
    }
    return text;
}

// The first sixteen digits as a number, what is missing filled up with `filler`.
std::uint64_t numberOf(std::string_view digits, char filler) {
    std::uint64_t number = 0;
    for (std::size_t at = 0; at < nameDigits; ++at)
        number = number << 4 | hexDigits.find(at < digits.size() ? digits[at] : filler);
    return number;
}

} // namespace

Id idOf(std::string_view sha) {
    return static_cast<Id>(numberOf(hexOf(sha.substr(0, nameDigits / 2)), '0') >> 1);
}

std::string nameOf(std::string_view sha) {
    return hexOf(sha.substr(0, nameDigits / 2));
}

IdBeginning::IdBeginning(std::string_view digits) : digits_(digits) {
    std::transform(digits_.begin(), digits_.end(), digits_.begin(), lowerCase);
    valid_ = !digits_.empty() && digits_.size() <= shaDigits &&
             digits_.find_first_not_of(hexDigits) == std::string::npos;
    if (!valid_)
        return;
    lowest_ = static_cast<Id>(numberOf(digits_, '0') >> 1);
    highest_ = static_cast<Id>(numberOf(digits_, 'f') >> 1);
}

bool IdBeginning::fits(std::string_view sha) const {
    return valid_ && hexOf(sha).compare(0, digits_.size(), digits_) == 0;
}

} // namespace tally::archive
