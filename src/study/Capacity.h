// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

#include <optional>
#include <span>

namespace tally::study {

// What is asked of a capacity check, amps.
struct CapacityCheck {
    double rating = 0;
    double add = 0;
    double factor = 1.25;
};

// Is there room for a new load? After the exception of NEC 220.87: the highest mean of any 15 consecutive
// minutes in 30 days, times 1.25, plus the added load, is to stay within the rating.
struct Capacity {
    LoadAt demand;        // highest of all files, with its first reading; always 15 minutes
    std::size_t file = 0; // the first file with it
    double required = 0;  // factor · demand + add, amps
    double rating = 0;
    double spare = 0; // rating − required
    bool ok = false;  // required ≤ rating, one part in 10⁹ forgiven
    double days = 0;  // that the files cover together
    bool enoughDays = false;
};

// Of files in amps; nothing when the axis covers less than 15 minutes.
std::optional<Capacity> capacityOf(std::span<const Channel> files, const Axis& axis,
                                   const CapacityCheck& check);

} // namespace tally::study
