// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <span>
#include <string>
#include <string_view>

namespace tally {

// The identifier field of a report: a UTF-8 answer as 14 bytes (Windows-1252), cut or padded with blanks; an
// empty one reads " N/A ". What the code page lacks becomes "?".
std::string identifierField(std::string_view answer);

// The whole hours of a day-aligned report.
struct WholeHours {
    int first = 0; // offset of the first reading
    int count = 0;
    ReadingTime firstEnd; // the end of the first clock hour
};

// The whole hours among 15-minute readings, from the first reading in the first quarter of an hour after a
// midnight on. None when there is no such reading, or less than an hour after it.
WholeHours wholeHours(ReadingTime firstReading, int readings);

// The report: the header line and a line for each whole hour of 15-minute kilowatts. The power factor is at
// most 1 in size and not 0. Throws Overflow when a value leaves single precision.
std::string meteringText(std::string_view identifier, std::span<const float> kilowatts,
                         const WholeHours& hours, float powerFactor);

} // namespace tally
