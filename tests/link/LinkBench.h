// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Session.h"
#include "support/MemoryFiles.h"
#include "support/MemoryJournal.h"
#include "support/QueuedPrompt.h"
#include "support/RecordingPanel.h"
#include "support/VirtualLine.h"

#include <string>

namespace tally::testing {

// A header as the instruments send it: model, mode character, serial number, time, battery.
inline std::string header(const std::string& model = "KWT", char mode = 'A',
                          const std::string& time = "03-15-24 14:05", const std::string& hex = "3E8") {
    return model + mode + "   1234" + std::string(19, ' ') + time + "   Vbatt " + hex;
}

// Ten readings of three digits and the line end of the data section.
inline std::string tenReadings() {
    std::string line;
    for (int i = 0; i < 10; ++i)
        line += " 12" + std::to_string(i);
    return line + "\n\r";
}

inline std::string lines(int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += tenReadings();
    return all;
}

// A whole memory: header, T form, lines of ten readings, terminator.
inline std::string memory(int lineCount = 3, const std::string& head = header()) {
    return head + "\rT:" + lines(lineCount) + "\x1a";
}

// Everything that a session needs, with a line that is silent until a test makes it speak.
struct LinkBench {
    VirtualWaiter waiter;
    VirtualLine line{waiter};
    QueuedPrompt prompt;
    RecordingPanel panel;
    InstrumentState instrument;
    MemoryJournal journal;
    MemoryFiles files;
    int gErrorCallPoint = 0;
    Session session{{line, waiter, prompt, instrument, journal, gErrorCallPoint}, panel};

    void automatic(std::int16_t current) {
        instrument.instSelection = 11;
        instrument.instAutoCurrent = current;
        instrument.portSettings = current == 7 ? "9600,N,8,1" : "115200,N,8,1";
        instrument.maxSamples = current == 7 ? 10710 : 42966;
    }
    // The instrument sends when the port is opened with its settings, `delay` milliseconds later; with others
    // it sends `rubbish` after 100 ms.
    void answers(const std::string& settings, const std::string& text, std::int64_t delay = 100,
                 const std::string& rubbish = "") {
        line.onOpen = [this, settings, text, delay, rubbish](const std::string& opened) {
            const bool right = opened == settings;
            waiter.after(right ? delay : 100, [this, sent = right ? text : rubbish] { line.send(sent); });
        };
    }
};

} // namespace tally::testing
