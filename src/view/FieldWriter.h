// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tally {

// Writes numbers through one pattern ("  000.0", "   000") at the speed of a long table, each followed by the
// two blanks of a table field. The texts are those that Format gives for the same pattern.
class FieldWriter {
public:
    // Blanks, "0" places, at most one decimal, blanks; at most 7 blanks on either side.
    explicit FieldWriter(std::string_view pattern);

    // The longest field that a number can become.
    static constexpr std::size_t mostChars = 64;

    // Both write at most mostChars characters and give the end.
    char* write(char* to, std::int16_t tenths) const;
    char* write(char* to, float value) const;

private:
    char* writeTenths(char* to, bool negative, std::uint32_t tenths) const;
    char* writeWhole(char* to, bool negative, std::uint32_t whole) const;
    char* digits(char* to, std::uint32_t whole) const;
    char* lead(char* to, bool negative) const;
    char* trail(char* to) const;

    std::string pattern_;
    std::array<char, 8> before_{}; // padded, so that copying all eight costs no branch
    std::array<char, 8> after_{};
    std::size_t beforeSize_ = 0;
    std::size_t afterSize_ = 0;
    std::size_t leastDigits_ = 0;
    bool decimal_ = false;
};

} // namespace tally
