// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Recordings.h"
#include "core/Refusal.h"

#include <string>
#include <string_view>

namespace tally {

enum class ForceWhich { all, leftmost, rightmost };

inline constexpr std::string_view forceSlotError = "Software error in ForceRdgs - 'ginx' is out of range";

// Gives the readings of a range of a file the leading number of a text (units), which is left in lastValue;
// gives how many were changed. Readings beyond the file's last one are passed over. Throws Overflow when an
// end of the range is above 32,767. Refused or thrown, no reading has changed.
Expected<int> forceReadings(Recordings& recordings, int slot, const Range& range, std::string_view text,
                            ForceWhich which, float& lastValue);

// Takes back the last forcing of a slot; gives how many readings that were, 0 when there is none.
int undoForcing(Recordings& recordings, int slot);

// How many readings of a slot are others than the file last written or opened holds.
int unsavedReadings(const Recordings& recordings, int slot);
// To be called when a range of a slot was written: what stands there now is in a file.
void readingsSaved(Recordings& recordings, int slot, const Range& saved);

} // namespace tally
