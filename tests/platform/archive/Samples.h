// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Kept.h"
#include "core/ModeTable.h"
#include "platform/archive/QtArchiveTools.h"
#include "support/DataTexts.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tally::testing {

inline const QtArchiveTools& tools() {
    static const QtArchiveTools all;
    return all;
}

// A recording as a test wants it.
struct Sample {
    CivilTime start = {2020, 1, 6, 0, 0};   // a Monday
    std::vector<int> values = {10, 20, 30}; // whole units, oldest first
    char mode = 'a';
    char type = 'A';
    std::string serial = "4711";
    std::string station = "North";
    std::string circuit = "Maple";
    std::string other = {};
    bool noted = true;
    std::string path = {};
};

// Its bytes as a data file. The header time is that of an interval and one more after the last reading.
inline std::string bytesOf(const Sample& sample) {
    const int intervals = static_cast<int>(sample.values.size()) / valuesPerInterval(sample.mode);
    const ReadingTime header =
        toReadingTime(sample.start) + std::int64_t{modeRow(sample.mode).minutes} * (intervals + 1);
    std::vector<std::string> newestFirst;
    std::transform(sample.values.rbegin(), sample.values.rend(), std::back_inserter(newestFirst),
                   [](int value) { return std::to_string(value); });
    return dataFile({sample.mode, headerTime(header), sample.type, sample.serial},
                    fieldLines(newestFirst, 4));
}

inline std::string notesOf(const Sample& sample) {
    return sample.station + "\r\n" + sample.circuit + "\r\n\r\n" + sample.other + "\r\n";
}

inline archive::Kept keptOf(const Sample& sample) {
    const std::string path = sample.path.empty() ? "/data/" + sample.serial + ".dat" : sample.path;
    const auto slash = path.rfind('/');
    const archive::Source source{
        path,
        {path.substr(path.rfind('/', slash - 1) + 1, slash - path.rfind('/', slash - 1) - 1),
         path.substr(slash + 1)}};
    auto kept = archive::keptOf(bytesOf(sample), sample.noted ? std::optional(notesOf(sample)) : std::nullopt,
                                source, tools());
    return kept.value();
}

inline std::vector<int> constant(int count, int value) {
    return std::vector<int>(static_cast<std::size_t>(count), value);
}

} // namespace tally::testing
