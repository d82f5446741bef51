// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/HeaderScan.h"
#include "link/Instruments.h"
#include "link/ResponseTimer.h"
#include "link/Session.h"

#include <cstdint>
#include <string>

namespace tally {

// The wait of the status check for the one header line that it reads.
class HeaderWait {
public:
    HeaderWait(Session& session, std::int64_t waitFor);

    // Whether a whole header came; if not, the reason was told (a cancel needs none). Throws what opening a
    // port throws.
    bool run();

    const HeaderScan& scan() const { return scan_; }

private:
    enum class Step { goOn, complete, ended };

    Step onDue();
    Step onCharacter();
    Step checkToken();
    Step flip(const std::string& reason);
    Step fail(const std::string& text);
    bool automatic() const { return session_.instrument.instSelection == autoSelectType; }

    Session& session_;
    ResponseTimer timer_;
    HeaderScan scan_;
    std::int64_t waitFor_;
    std::int64_t deadline_ = Waiter::never; // of the whole wait
    bool headerValid_ = false;
};

} // namespace tally
