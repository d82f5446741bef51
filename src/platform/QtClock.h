// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"

namespace tally {

// The wall clock of the machine, and its steady one.
class QtClock : public Clock {
public:
    ReadingTime localTime() const override;
    std::int64_t now() const override;
};

} // namespace tally
