// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DataRows.h"

#include <cstring>

#if defined(__SSE2__)

#include <emmintrin.h>

namespace tally {

namespace {

// Sixteen characters are four fields of four, each a lane of 32 bits with its first character lowest.
using Lanes = __m128i;

std::uint64_t load(const char* text) {
    std::uint64_t word = 0;
    std::memcpy(&word, text, sizeof word);
    return word;
}

Lanes loadFour(const char* text) {
    return _mm_loadu_si128(reinterpret_cast<const Lanes*>(text));
}

bool anyByte(Lanes lanes) {
    return _mm_movemask_epi8(_mm_cmpeq_epi8(lanes, _mm_setzero_si128())) != 0xFFFF;
}

// Reads fields of blanks followed by digits, and gathers what is wrong with them.
class RowReader {
public:
    // `mayBeBlank`: the bits of the characters of a field that may be blanks. `scale`: tenths in the last
    // place.
    RowReader(int mayBeBlank, short scale)
        : mayBeBlank_(_mm_set1_epi32(mayBeBlank)),
          weights_(_mm_set_epi16(scale, short(100 * scale), scale, short(100 * scale), scale,
                                 short(100 * scale), scale, short(100 * scale))) {}

    // Four fields; stored as last[0] to last[-3].
    void read(Lanes text, std::int16_t* last) {
        const Lanes blanks = _mm_cmpeq_epi8(text, _mm_set1_epi8(' '));
        const Lanes digits = _mm_andnot_si128(blanks, _mm_xor_si128(text, _mm_set1_epi8('0')));
        largestDigit_ = _mm_max_epu8(largestDigit_, digits);
        // Before a blank stands a blank or the field's beginning.
        const Lanes begins =
            _mm_and_si128(_mm_or_si128(_mm_slli_epi32(blanks, 8), _mm_set1_epi32(0xFF)), mayBeBlank_);
        wrong_ = _mm_or_si128(wrong_, _mm_andnot_si128(begins, blanks));
        const Lanes zeros = _mm_cmpeq_epi8(text, _mm_set1_epi8('0'));
        padded_ = _mm_or_si128(padded_, _mm_and_si128(zeros, begins));
        blankEverywhere_ = _mm_and_si128(blankEverywhere_, blanks);
        const Lanes first = _mm_and_si128(digits, _mm_set1_epi16(0xFF));
        const Lanes tens =
            _mm_add_epi16(_mm_mullo_epi16(first, _mm_set1_epi16(10)), _mm_srli_epi16(digits, 8));
        const Lanes tenths = _mm_madd_epi16(tens, weights_);
        // What does not fit 16 bits becomes the largest number, which no field gives.
        const Lanes packed = _mm_packs_epi32(tenths, tenths);
        largest_ = _mm_max_epi16(largest_, packed);
        _mm_storel_epi64(reinterpret_cast<Lanes*>(last - 3), _mm_shufflelo_epi16(packed, 0x1B));
    }

    // Whether all were fields.
    bool good() const {
        const Lanes nine = _mm_set1_epi8(9);
        const Lanes others = _mm_xor_si128(_mm_max_epu8(largestDigit_, nine), nine);
        const Lanes tooLarge = _mm_cmpeq_epi16(largest_, _mm_set1_epi16(0x7FFF));
        return !anyByte(_mm_or_si128(_mm_or_si128(wrong_, others), tooLarge));
    }
    // Whether a field has a "0" before other digits while one, anywhere in the row, has no blank.
    bool zerosMayTouch() const {
        const Lanes filled = _mm_andnot_si128(blankEverywhere_, _mm_set1_epi32(0xFF));
        return anyByte(padded_) && anyByte(filled);
    }

private:
    Lanes mayBeBlank_;
    Lanes weights_;
    Lanes wrong_ = _mm_setzero_si128();
    Lanes largestDigit_ = _mm_setzero_si128();
    Lanes largest_ = _mm_setzero_si128();
    Lanes padded_ = _mm_setzero_si128();
    Lanes blankEverywhere_ = _mm_set1_epi8(-1);
};

// Two fields "dd d.d" without their points; what is no point is gathered.
std::uint64_t withoutPoints(const char* text, std::uint64_t& noPoint) {
    const std::uint64_t left = load(text);
    const std::uint64_t right = load(text + 5);
    noPoint |= (left ^ 0x2E000000U) | (right ^ 0x2E000000U);
    const auto joined = [](std::uint64_t word) { return (word & 0x00FFFFFFU) | ((word >> 8) & 0xFF000000U); };
    return joined(left) | (joined(right) << 32);
}

Lanes lanesOf(std::uint64_t low, std::uint64_t high) {
    return _mm_set_epi64x(static_cast<std::int64_t>(high), static_cast<std::int64_t>(low));
}

} // namespace

bool DataRow::readHigh(const char* text, std::int16_t* last) {
    RowReader reader(0x00FFFFFF, 10);
    reader.read(loadFour(text), last);
    reader.read(loadFour(text + 16), last - 4);
    reader.read(loadFour(text + 24), last - 6);
    // No save writes such zeros where fields touch: that is for the reader of items.
    return reader.good() && !reader.zerosMayTouch();
}

bool DataRow::readLow(const char* text, std::int16_t* last) {
    RowReader reader(0x0000FFFF, 1);
    std::uint64_t noPoint = 0;
    const std::uint64_t middle = withoutPoints(text + 30, noPoint);
    reader.read(lanesOf(withoutPoints(text, noPoint), withoutPoints(text + 10, noPoint)), last);
    reader.read(lanesOf(withoutPoints(text + 20, noPoint), middle), last - 4);
    reader.read(lanesOf(middle, withoutPoints(text + 40, noPoint)), last - 6);
    return reader.good() && (noPoint & 0xFF000000U) == 0;
}

} // namespace tally

#else

namespace tally {

// Elsewhere the items are read one by one.
bool DataRow::readHigh(const char*, std::int16_t*) {
    return false;
}

bool DataRow::readLow(const char*, std::int16_t*) {
    return false;
}

} // namespace tally

#endif
