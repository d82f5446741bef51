// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/TLY.h"
#include "link/Session.h"
#include "platform/SafeFile.h"
#include "support/FixedClock.h"
#include "support/MemoryJournal.h"
#include "support/MemorySettings.h"
#include "support/QueuedPrompt.h"
#include "support/VirtualLine.h"
#include "support/VirtualWaiter.h"

#include <functional>
#include <string>

namespace tally::pictures {

class FirstFile : public SlotChooser {
public:
    int choose(const Recordings&, int) override { return 0; }
};

// A machine with one cable at its first port.
class OneCable : public PortCatalogue {
public:
    std::vector<PortDevice> devices() const override;
    PortPresence presence(const std::string& path) const override;
};

// A main window on the sample files, with nothing of the user's own: settings in memory, a standing clock.
class Bench {
public:
    // Pictures go to `out`, samples come from `samples`.
    Bench(std::string out, std::string samples);

    void open(const std::vector<std::string>& names, bool plot);
    void click(const char* item) { window.menus().item(item).trigger(); }
    void zoomTo(int first, int last);
    // Paints what waits to be painted and writes NAME.png.
    void grab(QWidget& widget, const char* name);
    // Runs when the next dialog is open.
    void whenOpen(std::function<void(QWidget&)> action);
    std::string sample(const std::string& name) const { return samples_ + "/" + name; }

private:
    std::string out_;
    std::string samples_;

public:
    Recordings recordings;
    Display display;
    testing::MemorySettings settings;
    SafeFile files;
    testing::FixedClock clock;
    testing::QueuedPrompt prompt;
    FirstFile chooser;
    testing::VirtualWaiter waiter;
    testing::VirtualLine line{waiter};
    testing::MemoryJournal journal;
    InstrumentState instrument;
    OneCable ports;
    int gErrorCallPoint = 0;
    SessionServices session{
        line, waiter, prompt, instrument, journal, gErrorCallPoint, [this] { waiter.cancelNow(); }};
    InstrumentPlaces places{ports, "/nowhere", "/nowhere/temp.dat"};
    TLY window{{recordings, display, settings, files, clock, prompt, chooser, session, places}};
};

} // namespace tally::pictures
