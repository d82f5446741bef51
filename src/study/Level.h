// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/Channel.h"

namespace tally::study {

// Mean of all loads; highest and lowest with the first time of each, of a Min/Max/Avg recording those of its
// maxima and minima. In the channel's unit.
struct Level {
    double mean = 0;
    LoadAt max;
    LoadAt min;
};

// At least one point.
Level levelOf(const Channel& channel, const Axis& axis);

} // namespace tally::study
