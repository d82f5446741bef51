// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Archives.h"
#include "core/Clock.h"
#include "core/Files.h"
#include "core/Prompt.h"
#include "core/Recordings.h"
#include "core/Settings.h"
#include "link/PortChoice.h"
#include "link/Session.h"
#include "view/Display.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tally {

// What sessions with an instrument find on this machine.
struct InstrumentPlaces {
    const PortCatalogue& ports;
    std::string workingDirectory; // current directory at start
    std::string temporary;        // file of the recover command
};

// What the archive works with.
struct ArchiveServices {
    const archive::Archives& archives;
    Files& files; // may be used from any thread
    std::function<std::optional<std::string>(const std::string& title)> chooseFolder;
    std::function<std::vector<std::string>(const std::string& title)> chooseFiles;
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
    const ArchiveServices* archive = nullptr; // without it the window has no archive
};

} // namespace tally
