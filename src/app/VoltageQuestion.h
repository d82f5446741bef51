// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"

namespace tally {

class StatusPanels;

// The question for the line voltage of the power views. What is unusual about an entry is said in the status
// line.
class VoltageQuestion {
public:
    VoltageQuestion(const Services& services, StatusPanels& status) : services_(services), status_(status) {}

    // Asks and keeps the answer; false when it was left.
    bool ask();
    // The same unless it was asked since the files were opened.
    bool ensureKnown() { return services_.display.powerKnown() || ask(); }

private:
    const Services& services_;
    StatusPanels& status_;
};

} // namespace tally
