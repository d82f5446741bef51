// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tally {

// Which of 64 characters are what: bit i stands for character i.
struct TextBlock {
    std::uint64_t digits = 0;
    std::uint64_t nines = 0;
    std::uint64_t lineFeeds = 0;
    std::uint64_t others = 0; // neither digit, blank, CR nor LF

    static constexpr std::size_t size = 64;
};

#if defined(__SSE2__)

inline TextBlock classify(const char* text) {
    const auto is = [](__m128i characters, char c) { return _mm_cmpeq_epi8(characters, _mm_set1_epi8(c)); };
    TextBlock block;
    for (unsigned part = 0; part < 4; ++part) {
        const __m128i characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + 16 * part));
        // Moves "0" to "9" to the ten lowest signed values.
        const __m128i moved = _mm_add_epi8(characters, _mm_set1_epi8('\x50'));
        const __m128i digit = _mm_cmplt_epi8(moved, _mm_set1_epi8('\x8a'));
        const __m128i lineFeed = is(characters, '\n');
        const __m128i known = _mm_or_si128(_mm_or_si128(digit, lineFeed),
                                           _mm_or_si128(is(characters, ' '), is(characters, '\r')));
        const auto bits = [part](__m128i mask) {
            return static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(mask))) << (16 * part);
        };
        block.digits |= bits(digit);
        block.nines |= bits(is(characters, '9'));
        block.lineFeeds |= bits(lineFeed);
        block.others |= bits(known);
    }
    block.others = ~block.others;
    return block;
}

#else

inline TextBlock classify(const char* text) {
    TextBlock block;
    for (unsigned i = 0; i < TextBlock::size; ++i) {
        const char c = text[i];
        const bool digit = c >= '0' && c <= '9';
        block.digits |= std::uint64_t{digit} << i;
        block.nines |= std::uint64_t{c == '9'} << i;
        block.lineFeeds |= std::uint64_t{c == '\n'} << i;
        block.others |= std::uint64_t{!digit && c != '\n' && c != ' ' && c != '\r'} << i;
    }
    return block;
}

#endif

} // namespace tally
