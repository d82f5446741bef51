// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Files.h"
#include "core/Prompt.h"
#include "core/Recordings.h"
#include "core/Settings.h"
#include "link/InstrumentState.h"
#include "link/Journal.h"
#include "link/Line.h"
#include "link/PortChoice.h"
#include "link/Waiter.h"
#include "view/Display.h"

#include <functional>
#include <string>

namespace tally {

// What the sessions with an instrument work with.
struct LinkServices {
    Line& line;
    Waiter& waiter;
    Journal& journal;
    InstrumentState& instrument;
    const PortCatalogue& ports;
    std::function<void()> requestCancel;
    std::string workingDirectory; // current directory at start
    std::string temporary;        // file of the recover command
};

// What the main window works with; owned by main, or by a test.
struct Services {
    Recordings& recordings;
    Display& display;
    Settings& settings;
    Files& files;
    Clock& clock;
    Prompt& prompt;
    SlotChooser& chooser;
    LinkServices& link;
};

} // namespace tally
