// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

#include <array>
#include <span>
#include <vector>

namespace tally::study {

// In the order of their names.
enum class FlagKind { flat, spike, zero };
inline constexpr std::array<const char*, 3> flagNames = {"flat", "spike", "zero"};

// Something in a recording that a reader should look at; no reading is changed for it.
//   flat: the same value, not 0, for at least 6 hours;
//   spike: one reading above both neighbours, or below both, by more than 5 times the median of all changes
//     from reading to reading and by more than 20 % of the highest reading;
//   zero: 0 for at least 2 readings.
struct Flag {
    std::size_t file = 0;
    FlagKind kind = FlagKind::flat;
    ReadingTime start;
    ReadingTime end; // when the interval of its last reading is over
    std::size_t readings = 0;
    double value = 0; // in the file's unit
};

// Of the files' averages; by start, kind, file.
std::vector<Flag> flagsOf(std::span<const Channel> files, const Axis& axis);

} // namespace tally::study
