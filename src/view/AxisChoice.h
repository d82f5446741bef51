// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Refusal.h"
#include "view/Plot.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tally {

// The units that a plot's axes have, each with choices of its own.
enum class AxisUnit { amperes, volts, kilowatts };
constexpr int axisUnits = 3;

struct FixedAxis {
    double min = 0;
    double max = 10;
    bool operator==(const FixedAxis&) const = default;
};

// What a user chose for the axis of a unit; it holds until it is chosen otherwise.
struct AxisChoice {
    std::optional<FixedAxis> fixed;
    std::vector<LimitLine> limits; // the label as it was entered, the axis not yet said
};
using AxisChoices = std::array<AxisChoice, axisUnits>;

AxisUnit axisUnitOf(char unit); // 'A' or 'V'
// "A", "V", "KW".
const char* axisUnitName(AxisUnit unit);

inline constexpr std::string_view fixedAxisPrompt =
    "Minimum and maximum of the y axis, such as 0 to 400\r\nNothing lets the readings decide";
inline constexpr std::string_view limitsPrompt =
    "Limit lines, each a value and a name, such as 400 Rating; 320 Planning\r\nNothing takes them away";

// "0 to 400", "0 400", "0;400 V": the lower one first. Empty for an empty entry; refused when it is no two
// numbers in order. A unit at the end says which axis is meant when there are two.
struct FixedAxisEntry {
    std::optional<FixedAxis> fixed;
    std::optional<AxisUnit> unit;
};
Expected<FixedAxisEntry> fixedAxisOf(std::string_view entry);
std::string fixedAxisText(const AxisChoice& choice);

// "400 Rating; 7200 V nominal": values with names, parted by semicolons; a unit behind a value says which
// axis is meant. The others take `unit`. Refused when a part does not begin with a number.
struct LimitEntry {
    AxisUnit unit;
    LimitLine line;
};
Expected<std::vector<LimitEntry>> limitsOf(std::string_view entry, AxisUnit unit);
std::string limitsText(const AxisChoice& choice);

// Puts the choice for a unit into one of the plot's axes: its ends and its limit lines, for which an axis
// that is not fixed makes room.
void applyChoice(Plot& plot, UnitAxis& axis, int index, AxisUnit unit, const AxisChoice& choice);

} // namespace tally
