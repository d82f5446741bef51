// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tally::testing {

// What a test file differs in from an open 15-minute average file of amps in the LOW range.
struct Sample {
    char letter = 'a';
    char type = ' ';
    bool low = true;
    ReadingTime start = toReadingTime({2024, 3, 15, 14, 0});
};

// Opens a file of tenths in the next free slot.
inline int addFile(Recordings& recordings, const std::string& path, std::vector<std::int16_t> tenths,
                   const Sample& sample = {}) {
    const int slot = recordings.freeSlot();
    FileFacts& info = recordings.gInfo.at(static_cast<std::size_t>(slot));
    info.modeLetter = sample.letter;
    info.typeLetter = sample.type;
    info.low = sample.low;
    info.start = sample.start;
    info.serial = "A123";
    info.path = path;
    info.count = static_cast<int>(tenths.size());
    if (!tenths.empty()) {
        info.smallest = *std::min_element(tenths.begin(), tenths.end());
        info.largest = *std::max_element(tenths.begin(), tenths.end());
    }
    recordings.gReadings.at(static_cast<std::size_t>(slot)) = std::move(tenths);
    recordings.ginx = slot;
    return slot;
}

// 0, step, 2 step, ...
inline std::vector<std::int16_t> ramp(int count, int step = 1) {
    std::vector<std::int16_t> tenths;
    for (int i = 0; i < count; ++i)
        tenths.push_back(static_cast<std::int16_t>(i * step));
    return tenths;
}

inline std::vector<std::int16_t> constant(int count, std::int16_t tenths) {
    return std::vector<std::int16_t>(static_cast<std::size_t>(count), tenths);
}

} // namespace tally::testing
