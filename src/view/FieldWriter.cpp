// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FieldWriter.h"

#include "core/Numbers.h"

#include <algorithm>
#include <cassert>

namespace tally {

namespace {

constexpr std::string_view fieldGap = "  ";

constexpr auto makeThreeDigits() {
    std::array<std::array<char, 3>, 1000> all{};
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = {static_cast<char>('0' + i / 100), static_cast<char>('0' + i / 10 % 10),
                  static_cast<char>('0' + i % 10)};
    return all;
}

} // namespace

constexpr std::array<std::array<char, 3>, 1000> FieldWriter::threeDigits = makeThreeDigits();

FieldWriter::FieldWriter(std::string_view pattern) : pattern_(pattern) {
    decimal_ = pattern.find('.') != std::string_view::npos;
    for (std::size_t i = 0; i < images_.size(); ++i) {
        const std::string field = Format(i == 0 ? 0.0 : 1000.0, pattern).append(fieldGap);
        Image& image = images_[i];
        assert(field.size() <= image.text.size());
        const auto lastDigit = decimal_ ? field.find('.') - 1 : field.find_last_of('0');
        image.digitsAt = lastDigit - 2;
        image.width = field.size();
        std::copy(field.begin(), field.end(), image.text.begin());
    }
}

template <typename Real>
std::size_t FieldWriter::putFormatted(char* to, Real value) const {
    const std::string text = Format(value, pattern_).append(fieldGap);
    std::copy(text.begin(), text.end(), to);
    return text.size();
}

template std::size_t FieldWriter::putFormatted(char* to, float value) const;
template std::size_t FieldWriter::putFormatted(char* to, double value) const;

} // namespace tally
