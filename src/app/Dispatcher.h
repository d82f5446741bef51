// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <functional>

namespace tally {

// Runs the commands of the window, one at a time: the one place where run-time faults are caught. After a
// fault the range, the current file and the state of the display are what they were before.
class Dispatcher {
public:
    Dispatcher(Recordings& recordings, DisplayState& display, Prompt& prompt)
        : recordings_(recordings), display_(display), prompt_(prompt) {}

    // False when the command failed, or did not run because another one is running (a session with an
    // instrument lets the window live).
    bool run(const std::function<void()>& command);
    bool running() const { return running_; }
    // A step of a running command that may fail without ending it; false when it did.
    bool attempt(const std::function<void()>& step);

    // Where a session was when a fault came; 0 for nowhere. Reset before each command.
    int gErrorCallPoint = 0;

private:
    Recordings& recordings_;
    DisplayState& display_;
    Prompt& prompt_;
    bool running_ = false;
};

} // namespace tally
