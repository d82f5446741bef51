// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Numbers.h"

#include "core/Fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tally {

namespace {

// Halves to even without relying on the rounding mode of the machine.
double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double part = value - below;
    if (part < 0.5)
        return below;
    if (part > 0.5)
        return below + 1;
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The text without blanks up to its first character that cannot belong to a number.
std::string numberPart(std::string_view text, std::size_t& used) {
    std::string part;
    bool point = false;
    bool exponent = false;
    bool digits = false;
    for (used = 0; used < text.size(); ++used) {
        char c = text[used];
        if (isBlank(c))
            continue;
        const char last = part.empty() ? '\0' : part.back();
        if (isDigit(c)) {
            digits = true;
        } else if (c == '.' && !point && !exponent) {
            point = true;
        } else if ((c == 'e' || c == 'E' || c == 'd' || c == 'D') && digits && !exponent) {
            exponent = true;
            c = 'e';
        } else if (!((c == '+' || c == '-') && (part.empty() || last == 'e'))) {
            break;
        }
        part += c;
    }
    return part;
}

// The number at the beginning of a part; infinite where it is too large, so that every range check refuses
// it.
double parse(std::string_view part) {
    if (!part.empty() && part.front() == '+')
        part.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(part.data(), part.data() + part.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    const bool negative = part.front() == '-';
    const auto digit = part.find_first_of("123456789");
    const auto exponent = part.find('e');
    // Too small to be told from 0 rather than too large.
    if (exponent == std::string_view::npos ? part.find('.') < digit : part.substr(exponent, 2) == "e-")
        return 0;
    return negative ? -HUGE_VAL : HUGE_VAL;
}

// Digits of a value without exponent, as many as it takes to read it back.
template <typename Real>
std::string digitsOf(Real value) {
    std::array<char, 512> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

// Adds one to the last digit of a run of digits (a point is passed over).
void addOne(std::string& digits) {
    for (auto i = digits.size(); i-- > 0;) {
        if (digits[i] == '.')
            continue;
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

// Cuts "123.456" to a number of decimals, halves away from zero.
std::string roundDigits(std::string digits, std::size_t decimals) {
    auto point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits += '.';
    }
    digits.append(decimals + 1, '0');
    const auto keep = point + 1 + decimals;
    const bool up = digits[keep] >= '5';
    digits.resize(keep);
    if (up)
        addOne(digits);
    if (decimals == 0)
        digits.pop_back();
    return digits;
}

void groupThousands(std::string& whole) {
    for (auto i = static_cast<std::ptrdiff_t>(whole.size()) - 3; i > 0; i -= 3)
        whole.insert(static_cast<std::size_t>(i), 1, ',');
}

template <typename Real>
std::string formatReal(Real value, std::string_view pattern) {
    constexpr std::string_view places = "#0,.";
    const auto first = pattern.find_first_of(places);
    if (first == std::string_view::npos)
        return std::string(pattern);
    const auto last = pattern.find_last_of(places);
    const auto run = pattern.substr(first, last - first + 1);
    const auto point = run.find('.');
    const auto wholePlaces = run.substr(0, point);
    const auto decimals = point == std::string_view::npos ? 0 : run.size() - point - 1;

    std::string digits = roundDigits(digitsOf(std::fabs(value)), decimals);
    const auto split = std::min(digits.find('.'), digits.size());
    std::string whole = digits.substr(0, split);
    const auto minimum = static_cast<std::size_t>(std::count(wholePlaces.begin(), wholePlaces.end(), '0'));
    if (whole == "0" && minimum == 0)
        whole.clear();
    if (whole.size() < minimum)
        whole.insert(0, minimum - whole.size(), '0');
    if (wholePlaces.find(',') != std::string_view::npos)
        groupThousands(whole);
    const bool zero = digits.find_first_not_of("0.") == std::string::npos;
    return std::string(pattern.substr(0, first)) + (value < 0 && !zero ? "-" : "") + whole +
           digits.substr(split) + std::string(pattern.substr(last + 1));
}

} // namespace

std::int16_t toInt16(double value) {
    const double rounded = roundHalfEven(value);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
          rounded <= std::numeric_limits<std::int16_t>::max()))
        throw fault::overflow();
    return static_cast<std::int16_t>(rounded);
}

std::int16_t textToInt16(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    std::size_t used = 0;
    const std::string part = numberPart(text, used);
    // All of it, with no blanks inside and with digits also after an exponent's letter.
    if (part.size() != text.size() || part.find_first_of("0123456789") == std::string::npos ||
        !(isDigit(part.back()) || part.back() == '.'))
        throw fault::typeMismatch();
    return toInt16(parse(part));
}

double Int(double value) {
    return std::floor(value);
}

double Val(std::string_view text) {
    std::size_t used = 0;
    return parse(numberPart(text, used));
}

std::optional<double> plainNumber(std::string_view text) {
    const std::string_view number = text.substr(text.starts_with('-') ? 1 : 0);
    bool digit = false;
    int points = 0;
    for (const char c : number) {
        digit = digit || (c >= '0' && c <= '9');
        points += c == '.' ? 1 : 0;
        if (c != '.' && (c < '0' || c > '9'))
            return std::nullopt;
    }
    return digit && points <= 1 ? std::optional(Val(text)) : std::nullopt;
}

std::string plain(double value) {
    return value == 0 ? "0" : digitsOf(value);
}

std::string plain(float value) {
    return value == 0 ? "0" : digitsOf(value);
}

std::string plainTenths(std::int32_t tenths) {
    return plain(static_cast<double>(tenths) / 10.0);
}

std::string counted(std::int64_t number, std::string_view thing) {
    return std::to_string(number) + " " + std::string(thing) + (number == 1 ? "" : "s");
}

std::string Str(double value) {
    std::string text = plain(value);
    if (value >= 0)
        text.insert(0, 1, ' ');
    return text;
}

std::string Format(double value, std::string_view pattern) {
    return formatReal(value, pattern);
}

std::string Format(float value, std::string_view pattern) {
    return formatReal(value, pattern);
}

} // namespace tally
