// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Session.h"

#include <cstdint>
#include <string>

namespace tally {

// The response timer of a dialog (its Timer1), and the change to the other port settings that it leads to.
class ResponseTimer {
public:
    static constexpr std::int64_t interval = 2500;  // milliseconds
    static constexpr std::int64_t resetTime = 5000; // milliseconds without DTR

    explicit ResponseTimer(Session& session) : session_(session) {}

    void StartTimer();
    void StopTimer();
    bool running() const { return running_; }
    // Both settings were tried, or a valid response was seen.
    bool triedBoth() const { return triedBoth_; }
    void setTriedBoth() { triedBoth_ = true; }
    // When the timer is due next; never while it is stopped.
    std::int64_t deadline() const { return running_ ? deadline_ : Waiter::never; }
    bool due() const { return session_.waiter.now() >= deadline(); }
    // Stops without a word in the log, as the time-out does.
    void disable() { running_ = false; }

    // What every tick writes into the log first.
    void logTick();

    // Takes the automatic type to its other settings and resets the interface; the timer then runs anew for
    // the full interval. `reason` begins the status text: "No response." or "Bad header.". Ends when the user
    // cancelled during the reset, and when the port does not open again, which was told unless `quiet`.
    SessionResult<void> FlipPortSettings(const std::string& reason = "No response.", bool quiet = false);

private:
    Session& session_;
    std::int64_t deadline_ = 0;
    bool running_ = false;
    bool triedBoth_ = false;
};

// The other one of the two automatic types, with its settings and samples.
void switchAutoType(InstrumentState& instrument);

} // namespace tally
