// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/LabelKeeper.h"
#include "link/HeaderScan.h"
#include "link/Session.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally {

// What comes before the options of the initialization: the warning that data will be lost, and a try of the
// port. False when the command ends here, which was told.
bool mnuItemInitialize_Click(Line& line, const InstrumentState& instrument, Prompt& prompt);

// The exchange with one instrument after the other that erases it and sets its clock and mode. Nothing of it
// goes into a journal: no recording is received.
class InitializeSession {
public:
    InitializeSession(Line& line, Waiter& waiter, Prompt& prompt, Panel& panel, InstrumentState& instrument,
                      int& gErrorCallPoint);

    // Sets instruments to a mode letter, "a" to "l", until the user wants no more. Gives how many were set.
    // The port is closed when it returns or throws (Subscript for a mode read back outside the mode table).
    int Initialize(char IMode);

private:
    enum class Outcome { another, abandoned, ended, done };

    Outcome one(char IMode);
    Outcome exchange(char IMode);
    std::optional<std::string> readAnswer();
    bool send(std::string_view characters);
    std::optional<char> next();
    Outcome stopped();
    Outcome report(const std::string& answer, bool lowBattery);

    NoJournal noJournal_;
    LabelKeeper label_;
    Session session_;
    int count_ = 0;
};

} // namespace tally
