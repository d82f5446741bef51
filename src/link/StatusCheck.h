// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Fault.h"
#include "link/InstrumentWait.h"
#include "link/Session.h"
#include "link/StatusHeader.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// The status check: one check after the other while the user wants another.
class StatusCheckSession {
public:
    // `waitFor` bounds the wait for the header (milliseconds); without it there is no bound.
    explicit StatusCheckSession(Session& session, std::int64_t waitFor = Waiter::never)
        : session_(session), waitFor_(waitFor) {}

    // What comes before the form: a port that is still open is closed, and told.
    void prepare();

    // Gives the fields of the check that ended it, or how that ended without them, which was told. The port
    // is closed when it returns.
    SessionResult<StatusFields> StatusCheck();

private:
    SessionResult<StatusFields> checkReported();
    SessionResult<StatusFields> checkOnce();
    SessionResult<Received> receive();
    StatusFields show(StatusFields fields);
    bool automatic() const;

    Session& session_;
    std::int64_t waitFor_;
};

// What came (bytes), the initial as it was sent.
std::string asSent(const Received& received);

// The header that can be read in what came: it begins at the first initial, or else at a later one; with
// automatic selection only the token begins one. `cut` takes one whose line has not ended, too.
std::optional<HeaderScan> readableHeader(std::string_view text, bool automatic, bool cut);

// Shows a run-time fault of the status check with its call point.
void ReportError(Prompt& prompt, const Fault& fault, int gErrorCallPoint);

} // namespace tally
