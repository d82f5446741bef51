// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/LabelKeeper.h"
#include "control/ReadBack.h"
#include "link/HeaderScan.h"
#include "link/Session.h"
#include "link/WaitHint.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally {

// What comes before the options of the initialization: the warning that data will be lost, and a try of the
// port. The end was told.
SessionResult<void> prepareInitialize(Session& session);

// How an initialization may be asked for.
struct InitializeRules {
    // Bounds the wait for the first character of an instrument (milliseconds).
    std::int64_t waitFor = Waiter::never;
    // One instrument: the caller shows its report, nobody is asked about another, and a cancel ends it.
    bool once = false;
};

// The exchange with one instrument after the other that erases it and sets its clock and mode. Nothing of it
// goes into the journal: no recording is received.
class InitializeSession {
public:
    InitializeSession(const SessionServices& services, Panel& panel, const InitializeRules& rules = {});

    // Sets instruments to a mode letter, "a" to "l", until the user wants no more. Gives what the last one
    // that was set read back, or how the first one ended without it. The port is closed when it returns or
    // throws (Subscript for a mode read back outside the mode table).
    SessionResult<ReadBack> Initialize(char IMode);
    // The last wait for a response ended without a usable one.
    bool abortFrmErrorFlag() const { return abortFrmErrorFlag_; }

private:
    enum class Outcome { another, abandoned, ended, done };

    Outcome one(char IMode);
    Outcome exchange(char IMode);
    std::optional<HeaderScan> waitForResponse();
    bool mayErase(const std::string& serial);
    std::optional<std::string> readAnswer();
    bool send(std::string_view characters);
    std::optional<char> next();
    Outcome stopped();
    Outcome report(const std::string& answer, bool lowBattery);

    LabelKeeper label_;
    Session session_;
    WaitHint hint_;
    InitializeRules rules_;
    std::optional<ReadBack> last_;
    SessionEnd end_;
    bool abortFrmErrorFlag_ = false;
};

} // namespace tally
