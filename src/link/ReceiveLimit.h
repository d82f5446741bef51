// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/InstrumentState.h"

#include <cstddef>

namespace tally {

inline constexpr std::size_t longLimit = 205000;
inline constexpr std::size_t shortLimit = 48000;
inline constexpr std::int32_t originalSamples = 2091;

// So many characters a download of the type in force receives at most. A memory of the special test size has
// the limit of its own size: six characters a sample, and room for header and noise.
constexpr std::size_t receiveLimit(const InstrumentState& instrument) {
    if (instrument.maxSamples < originalSamples)
        return static_cast<std::size_t>(instrument.maxSamples) * 6 + 1024;
    return instrument.maxSamples == originalSamples ? shortLimit : longLimit;
}

// What a full memory of the type in force sends at most: five characters a sample, two at the end of a line
// of ten, and the header; never more than is received.
constexpr std::size_t maximumCharacters(const InstrumentState& instrument) {
    constexpr std::size_t header = 60;
    const auto samples = static_cast<std::size_t>(instrument.maxSamples);
    const std::size_t whole = samples * 5 + (samples + 9) / 10 * 2 + header;
    return whole < receiveLimit(instrument) ? whole : receiveLimit(instrument);
}

// receiveLimit() after the change to the other rate of the automatic type.
constexpr std::size_t receiveLimitAfterFlip(const InstrumentState& instrument) {
    return instrument.maxSamples < 10711 ? shortLimit : longLimit;
}

} // namespace tally
