// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"

namespace tally::testing {

class FixedClock : public Clock {
public:
    ReadingTime time = toReadingTime({2024, 3, 15, 14, 5});
    std::int64_t milliseconds = 0;

    ReadingTime localTime() const override { return time; }
    std::int64_t now() const override { return milliseconds; }
};

} // namespace tally::testing
