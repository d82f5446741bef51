// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"

#include <string>
#include <string_view>

namespace tally {

enum class ForceWhich { all, leftmost, rightmost };

struct ForceResult {
    std::string message; // what the message box says; empty when forced
    int count = 0;       // readings forced
    bool done() const { return message.empty(); }
};

inline constexpr std::string_view forceSlotError = "Software error in ForceRdgs - 'ginx' is out of range";

// Gives readings of gDatastart to gdataend of the current file the leading number of a text (units), which is
// left in lastValue. Readings beyond the file's last one are passed over. Throws Overflow when an end of the
// range is above 32,767. Refused or thrown, no reading has changed.
ForceResult forceReadings(Recordings& recordings, std::string_view text, ForceWhich which, float& lastValue);

// Takes back the last forcing of a slot; gives how many readings that were, 0 when there is none.
int undoForcing(Recordings& recordings, int slot);

} // namespace tally
