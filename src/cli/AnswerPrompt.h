// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"

#include <string>
#include <utility>

namespace tally::cli {

// Answers the one question of a command with an option, and keeps what the last box said.
class AnswerPrompt : public Prompt {
public:
    explicit AnswerPrompt(std::string answer = {}) : answer_(std::move(answer)) {}

    const std::string& told() const { return told_; }

    Answer show(const Message& message) override {
        told_ = message.text;
        return message.defaultAnswer;
    }
    std::optional<std::string> input(const InputQuestion&) override { return answer_; }
    std::optional<std::string> chooseFile(const FileQuestion&) override { return std::nullopt; }

private:
    std::string answer_;
    std::string told_;
};

} // namespace tally::cli
