// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Study.h"

#include <optional>
#include <string>
#include <vector>

namespace tally::study {

// The options of a study as a user typed them; what was not typed is missing. Volts may be grouped by
// thousands ("13,800").
struct OptionEntries {
    std::optional<std::string> window = {};
    std::optional<std::string> high = {};
    std::optional<std::string> low = {};
    std::optional<std::string> rating = {};
    std::optional<std::string> add = {};
    std::optional<std::string> factor = {};
    std::optional<std::string> volts = {};
    std::optional<std::string> pf = {};
    std::vector<std::string> holidays = {};
};

// The options that they stand for. Refuses, with the name of the entry as subject, what is no plain decimal
// number or date, a window that is none of the six, a high limit that is not above the low one, a rating,
// factor or voltage not above 0, an added load or power factor below 0, and an added load or factor without a
// rating, a power factor without a voltage.
Expected<StudyOptions> optionsOf(const OptionEntries& entries);

} // namespace tally::study
