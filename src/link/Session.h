// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/InstrumentState.h"
#include "link/Journal.h"
#include "link/Line.h"
#include "link/Panel.h"
#include "link/SessionEnd.h"
#include "link/Waiter.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace tally {

// What every session with an instrument works with; owned by main, or by a test. One session at a time: while
// one runs the commands of the main window are off.
struct SessionServices {
    Line& line;
    Waiter& waiter;
    Prompt& prompt;
    InstrumentState& instrument;
    Journal& journal;
    int& gErrorCallPoint;                                         // where risky serial steps stand
    std::function<void()> requestCancel = {};                     // reaches the waiter; for dialogs
    std::function<void(const std::string& text)> mainStatus = {}; // status line of the main window
};

// A session, and the reading of its characters: the line hands each to the journal the moment it arrives, and
// what comes during a pause is kept for the next read.
class Session : public SessionServices {
public:
    Session(const SessionServices& services, Panel& sessionPanel)
        : SessionServices(services), panel(sessionPanel) {}

    Panel& panel;

    // Opens the selected port with the settings in force. Throws what Line::PortOpen throws.
    void openPort();
    // The same; a port that cannot be opened is an end, and is told of unless `quiet`.
    SessionResult<void> open(bool quiet = false);
    // Opens and closes the selected port, so that a bad one is told of before any dialog.
    SessionResult<void> probe();
    // Closes the port and drops what was read from it but not used.
    void closePort();
    // One character, or nothing when none has come.
    std::string Input();
    // Waits for a character: due, cancelled, data, in this order when they coincide.
    Wake until(std::int64_t deadline);
    // Waits for the deadline alone; characters that come are kept. Gives due or cancelled; due at once when
    // the line has closed itself.
    Wake pause(std::int64_t deadline);
    // How many characters were read and not used.
    std::size_t unused() const { return kept_.size() - used_; }
    // The line closed itself under the session, and everything read from it was used.
    bool lost() const { return unused() == 0 && !line.isOpen(); }

    // Tells why the session ends, in the words of the refusal.
    tl::unexpected<SessionEnd> end(EndKind kind, const Refusal& why) const;
    static tl::unexpected<SessionEnd> cancelled() { return tl::make_unexpected(SessionEnd{}); }

private:
    SessionResult<void> tryPort(const std::function<void()>& open, bool quiet) const;
    // Reads into the store, up to `maximum` characters kept.
    void drain(std::size_t maximum);

    std::string kept_;
    std::size_t used_ = 0;
    std::int64_t looked_ = 0; // what the clock said last while kept characters were used
};

// What the journal writes down of a reception that this session begins.
JournalHeader journalHeader(const Session& session, const std::string& command);

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
