// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/PortChoice.h"

namespace tally {

// The serial devices of this machine, under their lasting names where they have one, and a simulated
// instrument when one runs at simulatedInstrument().
class PortList : public PortCatalogue {
public:
    std::vector<PortDevice> devices() const override;
    // Looks without reading or writing; a device that is no serial line counts as not there.
    PortPresence presence(const std::string& path) const override;
};

// Where a simulated instrument of this user is found: the link to make with "tallyline-sim --link".
std::string simulatedInstrument();

} // namespace tally
