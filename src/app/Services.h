// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Clock.h"
#include "core/Files.h"
#include "core/Prompt.h"
#include "core/Recordings.h"
#include "core/Settings.h"
#include "view/DisplayState.h"

namespace tally {

// What the main window works with; owned by main, or by a test.
struct Services {
    Recordings& recordings;
    DisplayState& display;
    Settings& settings;
    Files& files;
    Clock& clock;
    Prompt& prompt;
    SlotChooser& chooser;
};

} // namespace tally
