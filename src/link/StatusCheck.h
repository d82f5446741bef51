// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Fault.h"
#include "link/Session.h"

#include <optional>
#include <string>

namespace tally {

// The fields of a status header.
struct StatusFields {
    std::string type;   // model code, upper case
    std::string serial; // four characters (bytes)
    std::string state;  // "Running", "Stopped", or empty for no mode letter
    std::string mode;   // "Average", "Min/Max/Avg ", or what is wrong with the mode character
    std::optional<int> interval;
    std::string whenFull; // "Cont", "Stop" or empty
    std::string timeOn;   // "hh:mm  MMM dd, yy"; as it came when it is no time
    std::optional<double> vbatt;
    bool lowBattery = false;

    // The text of the result label (UTF-8).
    std::string text() const;
};

// Reads a status header (bytes, from the family initial on). Throws Subscript for a mode letter after "m".
StatusFields readStatusHeader(const std::string& line1, bool lowBattery);

// The status check: one check after the other while the user wants another. Gives the fields of the last one
// that succeeded. The port is closed when it returns.
class StatusCheckSession {
public:
    explicit StatusCheckSession(Session& session, std::int64_t waitFor = Waiter::never);
    std::optional<StatusFields> StatusCheck();

private:
    Session& session_;
    std::int64_t waitFor_;
};

// Shows a run-time fault of the status check with its call point.
void ReportError(Prompt& prompt, const Fault& fault, int gErrorCallPoint);

} // namespace tally
