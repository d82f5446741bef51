// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Files.h"
#include "core/Prompt.h"
#include "core/Recordings.h"
#include "core/Settings.h"
#include "link/PortChoice.h"
#include "link/Session.h"
#include "view/Display.h"

#include <string>

namespace tally {

// What sessions with an instrument find on this machine.
struct InstrumentPlaces {
    const PortCatalogue& ports;
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
    SessionServices& session;
    const InstrumentPlaces& places;
};

} // namespace tally
