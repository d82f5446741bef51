// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tally {

// What 64 characters of a data section are: bit i stands for character i.
struct TextBlock {
    std::uint64_t digits = 0;
    std::uint64_t lineFeeds = 0;
    // Digits, blanks, CR and LF only, and "999" begins nowhere. May be false without need.
    bool plain = true;

    static constexpr std::size_t size = 64;
    static constexpr std::size_t looksAt = size + 2; // characters that classify() reads
};

// In plain steps, for any machine.
inline TextBlock classifyPlainly(const char* text) {
    TextBlock block;
    for (unsigned at = 0; at < TextBlock::size; ++at) {
        const char c = text[at];
        const bool digit = c >= '0' && c <= '9';
        block.digits |= std::uint64_t{digit} << at;
        block.lineFeeds |= std::uint64_t{c == '\n'} << at;
        // Of digits and white space only three nines have all the bits of a nine in common.
        block.plain = block.plain && (digit || c == '\n' || c == ' ' || c == '\r') &&
                      (c & text[at + 1] & text[at + 2]) != '9';
    }
    return block;
}

#if defined(__SSE2__)

// The same, 16 characters at a time.
inline TextBlock classify(const char* text) {
    const auto load = [text](unsigned at) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + at));
    };
    const auto is = [](__m128i characters, char c) { return _mm_cmpeq_epi8(characters, _mm_set1_epi8(c)); };
    const auto mask = [](__m128i flags) { return static_cast<std::uint64_t>(_mm_movemask_epi8(flags)); };
    TextBlock block;
    __m128i known = _mm_set1_epi8(-1);
    __m128i nines = _mm_setzero_si128();
    for (unsigned at = 0; at < TextBlock::size; at += 16) {
        const __m128i characters = load(at);
        // Moves "0" to "9" to the ten lowest signed values.
        const __m128i moved = _mm_add_epi8(characters, _mm_set1_epi8('\x50'));
        const __m128i digit = _mm_cmplt_epi8(moved, _mm_set1_epi8('\x8a'));
        const __m128i lineFeed = is(characters, '\n');
        const __m128i space = _mm_or_si128(is(characters, ' '), is(characters, '\r'));
        known = _mm_and_si128(known, _mm_or_si128(_mm_or_si128(digit, lineFeed), space));
        const __m128i common = _mm_and_si128(characters, _mm_and_si128(load(at + 1), load(at + 2)));
        nines = _mm_or_si128(nines, is(common, '9'));
        block.digits |= mask(digit) << at;
        block.lineFeeds |= mask(lineFeed) << at;
    }
    block.plain = mask(_mm_andnot_si128(nines, known)) == 0xffff;
    return block;
}

#else

inline TextBlock classify(const char* text) {
    return classifyPlainly(text);
}

#endif

// How many bits are set up to and including each of the 8 bytes of a mask, in that byte.
inline std::uint64_t bitsUpToByte(std::uint64_t mask) {
    mask -= mask >> 1 & 0x5555555555555555;
    mask = (mask & 0x3333333333333333) + (mask >> 2 & 0x3333333333333333);
    mask = (mask + (mask >> 4)) & 0x0f0f0f0f0f0f0f0f;
    return mask * 0x0101010101010101;
}

} // namespace tally
