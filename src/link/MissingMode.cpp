// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/MissingMode.h"

#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/Text1252.h"
#include "link/ReceivedText.h"

namespace tally {

namespace {

constexpr char firstMode = 'a';
constexpr char lastMode = 'l';

std::vector<std::string> allChoices() {
    std::vector<std::string> all;
    for (char letter = firstMode; letter <= lastMode; ++letter)
        all.push_back(modeChoice(letter));
    return all;
}

// What stands in a message for a byte that may be no character.
std::string named(char c) {
    if (c >= ' ' && c != '\x7f')
        return "'" + std::string(1, c) + "'";
    return "character " + std::to_string(static_cast<unsigned char>(c));
}

} // namespace

std::string missingModeText(std::string_view gText) {
    const std::string header = headerOf(gText);
    const std::string_view letter = headerField(header, column::mode);
    return "The mode letter of the recording could not be read (" +
           (letter.empty() ? std::string("the header ends before it") : named(letter[0])) + ").";
}

std::string modeChoice(char letter) {
    const ModeRow& row = modeRow(letter);
    return std::to_string(row.minutes) + " min " + (isMinMaxAvg(letter) ? "Min/Max/Avg" : "Average") +
           (row.whenFull == "Stop" ? ", stop when full" : ", continuous");
}

std::optional<char> modeOfAnswer(std::string_view answer) {
    for (char letter = firstMode; letter <= lastMode; ++letter)
        if (answer == modeChoice(letter) || (answer.size() == 1 && lowerCase(answer[0]) == letter))
            return letter;
    return {};
}

bool completeMode(std::string& gText, Prompt& prompt) {
    if (isMode(modeLetterOf(headerOf(gText))))
        return true;
    const std::string question = missingModeText(gText) +
                                 "\r\nWhat the instrument sent is kept. Which interval and mode did it "
                                 "record with?";
    std::optional<char> letter;
    while (!letter) {
        const auto answer =
            prompt.input({.text = question, .preset = modeChoice(firstMode), .choices = allChoices()});
        if (!answer || answer->empty())
            return false;
        letter = modeOfAnswer(*answer);
    }
    setModeLetter(gText, *letter);
    return true;
}

} // namespace tally
