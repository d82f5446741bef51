// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Session.h"

#include <cstdint>

namespace tally {

// What a wait without a time limit shows when nothing has come for ten seconds: since when it waits, and what
// to look at. It goes away with the next character.
class WaitHint {
public:
    static constexpr std::int64_t after = 10000; // milliseconds

    explicit WaitHint(Session& session) : session_(session) {}
    ~WaitHint() { hide(); }
    WaitHint(const WaitHint&) = delete;
    WaitHint& operator=(const WaitHint&) = delete;

    // A wait begins.
    void start();
    // When to call onDue next; never while it is shown or was not started.
    std::int64_t deadline() const { return deadline_; }
    bool isDue() const { return session_.waiter.now() >= deadline_; }
    // Shows the hint, unless characters have come since it was last due.
    void onDue();
    // A character came.
    void heard() {
        heard_ = true;
        if (shown_)
            start();
    }
    void hide();

private:
    Session& session_;
    std::int64_t deadline_ = Waiter::never;
    ReadingTime since_;
    bool heard_ = false;
    bool shown_ = false;
};

} // namespace tally
