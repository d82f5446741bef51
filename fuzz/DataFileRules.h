// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Fuzz.h"

#include "core/DataText.h"
#include "core/SaveText.h"

#include <algorithm>
#include <cstdlib>

namespace tally::fuzz {

inline void requireFacts(const Recording& recording) {
    const FileFacts& facts = recording.facts;
    const auto& readings = recording.readings;
    require(!readings.empty() && readings.size() <= Recordings::maximumReadings, "1 to 42,966 readings");
    require(static_cast<std::size_t>(facts.count) == readings.size(), "the count is that of the readings");
    require(facts.largest == *std::max_element(readings.begin(), readings.end()),
            "the largest is one of them");
    require(facts.smallest == *std::min_element(readings.begin(), readings.end()), "so is the smallest");
    require(facts.header.size() >= 44 && facts.serial.size() == 4, "the header holds serial and time");
    require(facts.start < facts.headerTime + 60, "reading 0 is before the header time");
}

// A field that is too narrow for its sign, or rounded out of range, is not read back.
inline bool savedAsItIs(const FileFacts& facts) {
    return facts.low || (facts.smallest >= 0 && facts.largest < 32765);
}

inline void requireReadBack(Recording recording) {
    Recordings model;
    model.ginx = 0;
    model.gInfo[0] = recording.facts;
    model.gReadings[0] = recording.readings;
    const auto again = readDataText(quoted(buildDataText(model, 0, model.all(0))));
    const auto* saved = std::get_if<Recording>(&again);
    require(saved != nullptr, "a saved file can be opened");
    if (!recording.facts.low)
        for (std::int16_t& tenths : recording.readings)
            tenths = static_cast<std::int16_t>((tenths + 5) / 10 * 10);
    require(saved->readings == recording.readings, "and says the same");
    require(saved->facts.unreadable == 0, "and all of it is numbers");
    require(saved->facts.serial == recording.facts.serial, "of the same instrument");
}

// What must hold for every text.
inline void requireRules(std::string_view text) {
    const auto result = readDataText(text);
    const auto* recording = std::get_if<Recording>(&result);
    if (recording == nullptr)
        return;
    requireFacts(*recording);
    if (savedAsItIs(recording->facts))
        requireReadBack(*recording);
}

} // namespace tally::fuzz
