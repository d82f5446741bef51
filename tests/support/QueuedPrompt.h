// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"

#include <deque>
#include <stdexcept>
#include <string>
#include <vector>

namespace tally::testing {

// Answers from queues and keeps every text byte for byte. A box with only an OK button needs no queued
// answer; any other question without one fails the test.
class QueuedPrompt : public Prompt {
public:
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> inputs;
    std::deque<std::optional<std::string>> files;
    std::vector<Message> shown;
    std::vector<InputQuestion> asked;
    std::vector<FileQuestion> filesAsked;

    Answer show(const Message& message) override {
        shown.push_back(message);
        if (message.buttons == Buttons::Ok)
            return Answer::Ok;
        return take(answers, "message box: " + message.text);
    }
    std::optional<std::string> input(const InputQuestion& question) override {
        asked.push_back(question);
        return take(inputs, "input box: " + question.text);
    }
    std::optional<std::string> chooseFile(const FileQuestion& question) override {
        filesAsked.push_back(question);
        return take(files, "file dialog: " + question.filter);
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const auto& message : shown)
            all.push_back(message.text);
        return all;
    }

private:
    template <typename T>
    static T take(std::deque<T>& queue, const std::string& what) {
        if (queue.empty())
            throw std::logic_error("no queued answer for " + what);
        T answer = std::move(queue.front());
        queue.pop_front();
        return answer;
    }
};

} // namespace tally::testing
