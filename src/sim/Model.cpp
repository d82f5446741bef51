// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Model.h"

#include <array>
#include <stdexcept>
#include <string>

namespace tally::sim {

namespace {

// A "V" in the third place marks a voltage recorder, a blank an instrument without selectable mode.
constexpr std::array<Model, lastType> models = {{
    {1, "HVN40/80", "HV ", 9600, 2091, true},
    {2, "HVN500/550", "HVA", 9600, 10710, false},
    {3, "HVT550 (voltage)", "HTV", 9600, 10710, false},
    {4, "PQV", "PQA", 9600, 10710, false},
    {5, "PQV-D", "PQD", 9600, 10710, false},
    {6, "TZ300 (voltage)", "PTV", 9600, 10710, false},
    {7, "PQX-K4", "KWT", 9600, 10710, false},
    {8, "PQX-K4-W", "KWT", 115200, 42966, false},
    {9, "Custom (any rate and size)", "KWT", 9600, 10710, false},
    {10, "PQX (the original model)", "PQX", 9600, 2091, false},
}};

} // namespace

const Model& modelOf(int type) {
    if (type < firstType || type > lastType)
        throw std::invalid_argument("the type must be 1 to 10, not " + std::to_string(type));
    return models[static_cast<std::size_t>(type - 1)];
}

} // namespace tally::sim
