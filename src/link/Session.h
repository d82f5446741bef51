// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/InstrumentState.h"
#include "link/Journal.h"
#include "link/Line.h"
#include "link/Panel.h"
#include "link/Waiter.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tally {

// What a session with an instrument works on, and the reading of its characters: the line hands
// each to the journal the moment it arrives, and what comes during a pause is kept for the next read.
class Session {
public:
    Session(Line& sessionLine, Waiter& sessionWaiter, Prompt& sessionPrompt, Panel& sessionPanel,
            InstrumentState& sessionInstrument, JournalSink& sessionJournal, int& callPoint)
        : line(sessionLine),
          waiter(sessionWaiter),
          prompt(sessionPrompt),
          panel(sessionPanel),
          instrument(sessionInstrument),
          journal(sessionJournal),
          gErrorCallPoint(callPoint) {}

    Line& line;
    Waiter& waiter;
    Prompt& prompt;
    Panel& panel;
    InstrumentState& instrument;
    JournalSink& journal;
    int& gErrorCallPoint; // where risky serial steps stand, for error reports
    // Input ends at ctrl/Z. An exchange of several texts, each with its own, turns this off.
    bool stopsAtCtrlZ = true;

    // Opens the selected port with the settings in force. Throws what Line::PortOpen throws.
    void openPort();
    // Closes the port and drops what was read from it but not used.
    void closePort();
    // One character, or nothing when none has come.
    std::string Input();
    // Waits for a character: due, cancelled, data, in this order when they coincide.
    Wake until(std::int64_t deadline);
    // Waits for the deadline alone; characters that come are kept. Gives due or cancelled; due at once when
    // the line has closed itself.
    Wake pause(std::int64_t deadline);
    // The line closed itself under the session, and everything read from it was used.
    bool lost() const { return !unused() && !line.isOpen(); }

private:
    bool unused() const { return used_ < kept_.size(); }
    // Reads into the store, up to `most` characters kept.
    void drain(std::size_t most);

    std::string kept_;
    std::size_t used_ = 0;
    std::int64_t looked_ = 0; // what the clock said last while kept characters were used
};

// Closes the port at the end of a procedure, however it ends.
class PortGuard {
public:
    explicit PortGuard(Session& session) : session_(session) {}
    ~PortGuard() { session_.closePort(); }
    PortGuard(const PortGuard&) = delete;
    PortGuard& operator=(const PortGuard&) = delete;

private:
    Session& session_;
};

} // namespace tally
