// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/InstrumentState.h"
#include "link/Journal.h"
#include "link/Line.h"
#include "link/Waiter.h"

#include <functional>
#include <string>

namespace tally {

// What the dialogs of a session with an instrument work with; owned by main, or by a test. One session at a
// time: while one runs the commands of the main window are off.
struct SessionContext {
    Line& line;
    Waiter& waiter;
    Prompt& prompt;
    InstrumentState& instrument;
    JournalSink& journal;
    int& gErrorCallPoint;
    std::function<void()> requestCancel;                     // reaches the waiter
    std::function<void(const std::string& text)> mainStatus; // status line of the main window
};

} // namespace tally
