// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"

namespace tally {

enum class Wake { data, due, cancelled };

// The clock of a session, and the one place where it waits: until characters have come, a deadline is due or
// the user (or the end of the application) cancels. Coincidences are answered in the order due, cancelled,
// data.
class Waiter : public Clock {
public:
    // Sleeps until something happens, at most until `deadline` (milliseconds of now()). Looks for waiting
    // characters before it sleeps; lets a window breathe at least every 50 ms even while characters keep
    // coming.
    virtual Wake until(std::int64_t deadline) = 0;
    // Whether cancel was requested and not yet reset.
    virtual bool cancelRequested() const = 0;
    virtual void resetCancel() = 0;
};

} // namespace tally
