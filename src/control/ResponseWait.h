// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/HeaderScan.h"
#include "link/ResponseTimer.h"
#include "link/Session.h"

#include <string>

namespace tally {

// The wait of the initialization for the instrument's response header. With automatic selection it tries both
// port settings; with any other type only the response or a cancel ends it.
class ResponseWait {
public:
    explicit ResponseWait(Session& session) : session_(session), timer_(session) {}

    // Whether a response header came; if not, the reason was told (a cancel needs none). The port is open.
    bool run();

    // The wait ended without a usable response.
    bool abortFrmErrorFlag() const { return abortFrmErrorFlag_; }
    // The response header: at least three characters (bytes) after a wait without error.
    const std::string& receivedText() const { return scan_.line(); }
    bool lowBattery() const { return scan_.lowBattery(); }

private:
    enum class Step { goOn, complete, ended };

    Step Timer1();
    Step onCharacter();
    Step switchSettings();
    Step giveUp();
    Step fail(const std::string& text);
    bool automatic() const;

    Session& session_;
    ResponseTimer timer_;
    HeaderScan scan_;
    bool abortFrmErrorFlag_ = false;
};

} // namespace tally
