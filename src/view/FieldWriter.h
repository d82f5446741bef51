// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace tally {

// Writes numbers through one pattern ("  000.0", "   000") at the speed of a long table, each followed by the
// two blanks of a table field. The texts are those that Format gives for the same pattern.
class FieldWriter {
public:
    // Blanks, 3 or 4 "0" places, at most one decimal, blanks; at most 7 blanks before and 2 after.
    explicit FieldWriter(std::string_view pattern);

    // The longest field that a number can become.
    static constexpr std::size_t maximumChars = 64;

    // Both may write up to maximumChars characters and give the end of the field.
    char* write(char* to, std::int16_t tenths) const;
    char* write(char* to, float value) const;

private:
    // A finished field of zeros; the last three digits before the point stand at digitsAt.
    struct Image {
        std::array<char, 16> text;
        std::size_t digitsAt;
        std::size_t width;
    };
    static const std::array<std::array<char, 3>, 1000> threeDigits;

    // Writes a number of at most four digits before the point; it counts tenths with a decimal, else units.
    char* put(char* to, std::uint32_t number) const;
    // Any number; gives the length. Apart from the pointer, so that the compiler knows where that stays.
    template <typename Real>
    std::size_t putFormatted(char* to, Real value) const;

    std::string pattern_;
    std::array<Image, 2> images_{}; // for three digits and for four
    bool decimal_ = false;
};

inline char* FieldWriter::put(char* to, std::uint32_t number) const {
    const std::uint32_t whole = decimal_ ? number / 10 : number;
    const std::uint32_t thousands = whole / 1000;
    const Image& image = images_[thousands != 0 ? 1 : 0];
    std::memcpy(to, image.text.data(), image.text.size());
    char* const digits = to + image.digitsAt;
    if (thousands != 0)
        digits[-1] = static_cast<char>('0' + thousands);
    std::memcpy(digits, threeDigits[whole - 1000 * thousands].data(), 3);
    if (decimal_)
        digits[4] = static_cast<char>('0' + (number - 10 * whole));
    return to + image.width;
}

inline char* FieldWriter::write(char* to, std::int16_t tenths) const {
    if (tenths < 0)
        return to + putFormatted(to, tenths / 10.0);
    return put(to, static_cast<std::uint32_t>(decimal_ ? tenths : (tenths + 5) / 10));
}

inline char* FieldWriter::write(char* to, float value) const {
    // Up to here a number has four digits, and the half of a float's last place is below a thousandth. As
    // bits, what is negative or no number compares as larger.
    constexpr auto maximum = std::bit_cast<std::uint32_t>(9999.0F);
    if (std::bit_cast<std::uint32_t>(value) >= maximum)
        return to + putFormatted(to, value);
    const double unit = decimal_ ? 10 : 1;
    const double raised = static_cast<double>(value) * unit + 0.5;
    auto number = static_cast<std::int32_t>(raised);
    // The shortest text that reads back as the value decides. Just below a half it may be the half itself,
    // which is rounded up; it is so when the half reads back as the value.
    if (raised - number > 0.99 && static_cast<float>((number + 0.5) / unit) == value)
        ++number;
    return put(to, static_cast<std::uint32_t>(number));
}

} // namespace tally
