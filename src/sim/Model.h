// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace tally::sim {

// What sets one instrument type apart from another on the line.
struct Model {
    int type;              // code 1 to 10
    std::string_view name; // for a person
    std::string_view code; // the three characters that begin its texts
    int baud;
    int samples;    // readings that its memory holds
    bool blankMode; // no selectable mode: 15-minute averages in a continuous loop
};

constexpr int firstType = 1;
constexpr int lastType = 10;

// The model of a type code 1 to 10. Throws std::invalid_argument outside.
const Model& modelOf(int type);

} // namespace tally::sim
