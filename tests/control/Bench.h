// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Instruments.h"
#include "link/Session.h"
#include "support/MemoryFiles.h"
#include "support/MemoryJournal.h"
#include "support/RecordingPanel.h"
#include "support/VirtualLine.h"
#include "support/VirtualWaiter.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace tally::testing {

// Answers a session in the way of a patient user: OK to the first connection prompts, then Cancel; Yes or No
// about another instrument from a queue, then No. Keeps every message.
class PatientUser : public Prompt {
public:
    int connections = 1; // connection prompts that are answered OK
    std::deque<Answer> another;
    std::vector<Message> shown;
    std::function<void()> onConnect = [] {};

    Answer show(const Message& message) override {
        shown.push_back(message);
        if (message.buttons == Buttons::Ok)
            return Answer::Ok;
        if (message.buttons == Buttons::OkCancel) {
            onConnect();
            return connections-- > 0 ? Answer::Ok : Answer::Cancel;
        }
        if (another.empty())
            return Answer::No;
        const Answer answer = another.front();
        another.pop_front();
        return answer;
    }
    std::optional<std::string> input(const InputQuestion&) override {
        throw std::logic_error("an input box was not expected");
    }
    std::optional<std::string> chooseFile(const FileQuestion&) override {
        throw std::logic_error("a file dialog was not expected");
    }
    // The texts of the plain boxes, those without a choice.
    std::vector<std::string> told() const {
        std::vector<std::string> texts;
        for (const Message& message : shown)
            if (message.buttons == Buttons::Ok)
                texts.push_back(message.text);
        return texts;
    }
    std::vector<std::string> questions(Buttons buttons) const {
        std::vector<std::string> texts;
        for (const Message& message : shown)
            if (message.buttons == buttons)
                texts.push_back(message.text);
        return texts;
    }
};

// A header of 44 columns: code 1 to 3, mode 4, serial 8 to 11, time 31 to 44.
inline std::string header(const std::string& code, char mode, const std::string& serial = "0417",
                          const std::string& time = "03-15-24 14:05") {
    return code + mode + "   " + serial + std::string(19, '.') + time;
}

// What a session works on, in virtual time.
class Bench {
public:
    VirtualWaiter waiter;
    VirtualLine line{waiter};
    PatientUser user;
    RecordingPanel panel;
    InstrumentState instrument;
    MemoryJournal journal;
    MemoryFiles files;
    int callPoint = 0;

    explicit Bench(int type) { applySelection(instrument, type); }
    SessionServices services() { return {line, waiter, user, instrument, journal, callPoint}; }
    Session session() { return {services(), panel}; }
};

} // namespace tally::testing
