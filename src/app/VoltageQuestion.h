// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"

#include <string>

namespace tally {

// The question for the line voltage of the power views.
class VoltageQuestion {
public:
    explicit VoltageQuestion(const Services& services) : services_(services) {}

    // Asks and keeps the answer; false when it was left.
    bool ask();
    // The same unless it was asked since the files were opened.
    bool ensureKnown() { return services_.display.powerKnown() || ask(); }
    // What is to be said of the voltage in force; empty when it is an ordinary one.
    const std::string& hint() const { return hint_; }

private:
    const Services& services_;
    std::string hint_;
};

} // namespace tally
