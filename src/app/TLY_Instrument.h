// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/forms/SessionContext.h"

#include <functional>

namespace tally {

class TLY;

// The Instrument menu, and the choice of port and type.
class TLY_Instrument {
public:
    explicit TLY_Instrument(TLY& window);

    void mnuItemDownload_Click();
    void mnuItemInitialize_Click();
    void mnuItemRecover_Click();
    void mnuItemStatusCheck_Click();
    void mnuItemPortSelect_Click();
    void mnuItemInstSelect_Click();

private:
    // Runs a session: a type is chosen first, the menus are off meanwhile.
    void session(const std::function<void()>& run);
    void sayProblem();

    TLY& window_;
    SessionContext context_;
};

} // namespace tally
