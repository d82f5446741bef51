// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ReadingTime.h"

#include <cstdint>

namespace tally {

// The clock of the machine as logic sees it: the wall for what is written down, milliseconds for what is
// waited for.
class Clock {
public:
    virtual ~Clock() = default;
    // Local date and time, minute resolution.
    virtual ReadingTime localTime() const = 0;
    // Milliseconds that only go forward.
    virtual std::int64_t now() const = 0;
};

} // namespace tally
