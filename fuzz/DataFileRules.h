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

inline void requireReadBack(Recording recording) {
    Recordings model;
    model.ginx = 0;
    model.gInfo[0] = recording.facts;
    model.gReadings[0] = recording.readings;
    const auto saved = readDataText(quoted(buildDataText(model, 0, model.all(0))));
    require(saved.has_value(), "a saved file can be opened");
    // Whole units, halves away from zero, and no more than a reading can be.
    if (!recording.facts.low)
        for (std::int16_t& tenths : recording.readings) {
            const int units = std::min((std::abs(tenths) + 5) / 10, 3276);
            tenths = static_cast<std::int16_t>((tenths < 0 ? -units : units) * 10);
        }
    require(saved->readings == recording.readings, "and says the same");
    require(saved->facts.unreadable == 0, "and all of it is numbers");
    require(saved->facts.complete, "with its end mark");
    require(saved->facts.serial == recording.facts.serial, "of the same instrument");
}

// What must hold for every text.
inline void requireRules(std::string_view text) {
    const auto recording = readDataText(text);
    if (!recording)
        return;
    requireFacts(*recording);
    requireReadBack(*recording);
}

} // namespace tally::fuzz
