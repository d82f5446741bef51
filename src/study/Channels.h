// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/TimeAxis.h"
#include "study/Axis.h"
#include "study/Channel.h"

#include <vector>

namespace tally::study {

// The open files cut to the time that they share, each under its file name: the second of equal names with
// " (2)", and so on.
std::vector<Channel> fileChannels(const Recordings& recordings, const TimeAxis& axis);

// The power of the files' channels as the power view works it out. Throws Overflow as it does.
Channel powerChannel(const std::vector<Channel>& files, const PowerScale& scale);

} // namespace tally::study
