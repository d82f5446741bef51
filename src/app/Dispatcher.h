// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "core/Recordings.h"
#include "core/Refusal.h"
#include "view/Display.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace tally {

// A command that may be refused; what refused it is told and what is shown stays as it was.
using Done = Expected<void>;

// Runs the commands of the window, one at a time: the one place where run-time faults are caught and refusals
// told. Before a command it keeps a copy of the display and of the current file; after a fault or a refusal
// it puts them back.
class Dispatcher {
public:
    // `gErrorCallPoint`: where a session was when a fault came, 0 for nowhere. Reset before each command.
    Dispatcher(Recordings& recordings, Display& display, Prompt& prompt, int& gErrorCallPoint)
        : recordings_(recordings), display_(display), prompt_(prompt), gErrorCallPoint_(gErrorCallPoint) {}

    // A command gives nothing or a Done. False when it failed or was refused, or did not run because another
    // one is running (a session with an instrument lets the window live).
    template <class Command>
    bool run(Command&& command) {
        return runDone(asDone(std::forward<Command>(command)));
    }
    // A step of a running command that may fail without ending it; false when it did.
    template <class Step>
    bool attempt(Step&& step) {
        return attemptDone(asDone(std::forward<Step>(step)));
    }
    bool running() const { return running_; }

    // Runs after each command, done or not: what follows the display is brought up to it.
    std::function<void()> after = [] {};

private:
    template <class Command>
    static std::function<Done()> asDone(Command&& command) {
        if constexpr (std::is_void_v<std::invoke_result_t<Command&>>)
            return [&command]() -> Done {
                command();
                return {};
            };
        else
            return [&command] { return command(); };
    }
    bool runDone(const std::function<Done()>& command);
    bool attemptDone(const std::function<Done()>& step);

    Recordings& recordings_;
    Display& display_;
    Prompt& prompt_;
    int& gErrorCallPoint_;
    bool running_ = false;
};

} // namespace tally
