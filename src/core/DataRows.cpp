// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataRows.h"

#include <cstring>
#include <limits>

namespace tally {

namespace {

// Eight characters in one word, the first one lowest, whatever the machine's byte order.
std::uint64_t load(const char* text) {
    std::uint64_t word = 0;
    std::memcpy(&word, text, sizeof word);
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    word = __builtin_bswap64(word);
#endif
    return word;
}

constexpr std::uint64_t every(std::uint64_t byte) {
    return byte * 0x0101010101010101U;
}

// Two fields of four characters each, at the same time.
struct Pair {
    std::uint64_t wrong;  // not 0 when a field is anything but blanks followed by digits
    std::uint64_t values; // first field in bits 0 to 15, second in bits 32 to 47
};

Pair readPair(std::uint64_t word) {
    // A blank becomes a "0" when bit 4 is set; a digit stays.
    const std::uint64_t digits = (word | every(0x10)) ^ every(0x30);
    const std::uint64_t blanks = (~word & every(0x10)) >> 4;
    std::uint64_t wrong = ((digits + every(0x76)) | digits) & every(0x80);
    wrong |= digits & every(0x70);
    // Only 0x20 is a blank.
    wrong |= digits & (blanks * 0x0F);
    // A blank has a blank or the field's beginning before it, and is not the field's end.
    wrong |= blanks & ~((blanks << 8) | 0x0000000100000001U);
    wrong |= blanks & 0x0100000001000000U;
    const std::uint64_t tens = digits * 10 + (digits >> 8);
    const std::uint64_t pairs = tens & 0x00FF00FF00FF00FFU;
    const std::uint64_t values = pairs * 100 + (pairs >> 16);
    return {wrong, values & 0x0000FFFF0000FFFFU};
}

constexpr std::uint64_t mostWhole = std::numeric_limits<std::int16_t>::max() / 10;

// "dd d.d" without the point and its check, as a field of four digits.
std::uint64_t withoutPoint(std::uint64_t word) {
    return (word & 0x00FFFFFFU) | ((word >> 8) & 0xFF000000U);
}

// What is not 0 when the fourth character is no point or the one before it no digit.
std::uint64_t pointWrong(std::uint64_t word) {
    return ((word ^ 0x2E000000U) & 0xFF000000U) | (~word & 0x00100000U);
}

} // namespace

bool DataRow::readHigh(const char* text, std::int16_t* last) {
    std::uint64_t wrong = 0;
    for (int field = 0; field < fields; field += 2) {
        const Pair pair = readPair(load(text + 4 * field));
        const std::uint64_t first = pair.values & 0xFFFFU;
        const std::uint64_t second = pair.values >> 32;
        // The difference wraps round to a huge number when a value is too large.
        wrong |= pair.wrong | ((mostWhole - first) >> 32) | ((mostWhole - second) >> 32);
        last[-field] = static_cast<std::int16_t>(first * 10);
        last[-field - 1] = static_cast<std::int16_t>(second * 10);
    }
    return wrong == 0;
}

bool DataRow::readLow(const char* text, std::int16_t* last) {
    std::uint64_t wrong = 0;
    for (int field = 0; field < fields; field += 2) {
        const std::uint64_t left = load(text + 5 * field);
        const std::uint64_t right = load(text + 5 * field + 5);
        const Pair pair = readPair(withoutPoint(left) | (withoutPoint(right) << 32));
        wrong |= pair.wrong | pointWrong(left) | pointWrong(right);
        last[-field] = static_cast<std::int16_t>(pair.values & 0xFFFFU);
        last[-field - 1] = static_cast<std::int16_t>(pair.values >> 32);
    }
    return wrong == 0;
}

} // namespace tally
