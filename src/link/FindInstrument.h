// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/PortChoice.h"
#include "link/Session.h"
#include "link/StatusHeader.h"

#include <optional>
#include <string>
#include <vector>

namespace tally {

// An instrument that was heard.
struct FoundInstrument {
    PortDevice port;
    int type = 0; // the code whose settings and memory fit it
    std::string settings;
    StatusFields status;

    // "/dev/ttyUSB0 (adapter): PQX-K4, serial number 4127, Vbatt = 3.806 volts" (UTF-8)
    std::string text() const;
};

// The free ports to listen on: those of adapters, or the others.
std::vector<PortDevice> portsToTry(const PortCatalogue& catalogue, bool adapters);

// The type whose settings and memory fit a model code at a rate; of two that cannot be told apart the first.
int typeOfModel(const std::string& model, const std::string& settings);

// Listens for instruments on one port after the other, at both rates. Nothing is ever sent; between the
// rates the interface is reset by DTR as for automatic selection.
class FindInstrument {
public:
    explicit FindInstrument(const SessionServices& services, Panel& panel)
        : services_(services), panel_(panel) {}

    // What was heard; the end of a cancelled search. Type and port in force stay as they are, and the port is
    // closed.
    SessionResult<std::vector<FoundInstrument>> find(const std::vector<PortDevice>& ports);

private:
    SessionResult<std::optional<FoundInstrument>> listen(Session& session, const PortDevice& port);
    SessionResult<std::optional<FoundInstrument>> listenAt(Session& session, const PortDevice& port,
                                                           bool first);

    const SessionServices& services_;
    Panel& panel_;
};

} // namespace tally
