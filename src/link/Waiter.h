// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"

#include <cstdint>
#include <limits>

namespace tally {

enum class Wake { data, due, cancelled };

// The clock of a session, and the one place where it waits: until characters have come, a deadline is due or
// the user (or the end of the application) cancels. Coincidences are answered in the order due, cancelled,
// data.
class Waiter : public Clock {
public:
    // A deadline that never comes.
    static constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();

    // A deadline missed by so many milliseconds ran out while the process (or the machine) stood still: what
    // has arrived meanwhile comes before it.
    static constexpr std::int64_t stoodStill = 1000;

    // Sleeps until something happens, at most until `deadline` (milliseconds of now()). Looks for waiting
    // characters before it sleeps; lets a window breathe at least every 50 ms even while characters keep
    // coming. Wakes with `data` also when the line has closed itself, so that its session sees it.
    virtual Wake until(std::int64_t deadline) = 0;
    // Whether cancel was requested and not yet reset.
    virtual bool cancelRequested() const = 0;
    virtual void resetCancel() = 0;
};

} // namespace tally
