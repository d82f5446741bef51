// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LiveInstrument.h"
#include "link/Instruments.h"
#include "link/Session.h"
#include "platform/JournalFolder.h"
#include "platform/QtWaiter.h"
#include "platform/SafeFile.h"
#include "platform/SerialLine.h"
#include "support/QueuedPrompt.h"
#include "support/RecordingPanel.h"

#include <QTemporaryDir>

namespace tally::testing {

// A session on the real line, with a journal on disk.
struct SessionDesk {
    std::string device;
    QTemporaryDir folder;
    SafeFile files;
    SerialLine line{[this](int) { return device; }};
    QtWaiter waiter{line};
    QueuedPrompt prompt;
    RecordingPanel panel;
    InstrumentState state;
    JournalFolder journal{journalFolder(), files};
    int callPoint = 0;
    SessionServices services{line, waiter, prompt, state, journal, callPoint};
    Session session{services, panel};

    SessionDesk(std::string path, int type) : device(std::move(path)) { applySelection(state, type); }
    std::string journalFolder() const { return folder.path().toStdString() + "/journal"; }
    std::string lastText() const { return prompt.shown.empty() ? std::string() : prompt.shown.back().text; }
};

// An instrument of a type that holds so many readings at noon of a day in 2024, a hundred times as fast as a
// real one.
inline sim::InstrumentSetup quickInstrument(int type, int count) {
    sim::InstrumentSetup setup = sim::setupOf(type, toReadingTime({2024, 3, 15, 12, 0}), count);
    setup.speed = 100;
    setup.plugDelay = 50;
    setup.eraseTime = 50;
    return setup;
}

// What such an instrument sends when its cable goes in.
inline std::string memoryOf(const sim::InstrumentSetup& setup) {
    sim::Instrument instrument(setup);
    instrument.opened(0);
    instrument.rate(0, setup.baud);
    std::string all;
    for (std::string piece; !(piece = instrument.sent(50'000)).empty();)
        all += piece;
    return all;
}

} // namespace tally::testing
