// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Load.h"

#include "core/ModeTable.h"
#include "view/ShownRange.h"

namespace tally::archive {

Load loadOf(const FileFacts& facts, const std::vector<std::int16_t>& readings) {
    Load load;
    load.interval = modeRow(facts.modeLetter).minutes;
    const auto first = static_cast<std::size_t>(firstWhole(facts));
    load.start = intervalTime(facts, firstWhole(facts));
    if (!isMinMaxAvg(facts.modeLetter)) {
        load.average = readings;
        return load;
    }
    for (std::size_t at = first; at + 2 < readings.size(); at += 3) {
        load.average.push_back(readings[at]);
        load.maximum.push_back(readings[at + 1]);
        load.minimum.push_back(readings[at + 2]);
    }
    return load;
}

} // namespace tally::archive
