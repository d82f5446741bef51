// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/FieldDate.h"

#include "core/DataText.h"
#include "core/Header.h"
#include "core/ModeTable.h"
#include "link/ReceivedText.h"

#include <optional>

namespace tally {

namespace {

const char* const dateQuestion = "Enter date and time of the field initialization\r"
                                 "using format 'mm-dd-yy hh:mm'";

// The first 8 characters are a date and the last 5 a time.
std::optional<ReadingTime> fieldDate(const std::string& answer) {
    if (answer.size() < 13)
        return {};
    return parseHeaderTime(answer.substr(0, 8) + " " + answer.substr(answer.size() - 5));
}

} // namespace

bool completeHeaderTime(std::string& gText, Prompt& prompt) {
    if (timeOf(headerOf(gText)))
        return true;
    std::optional<ReadingTime> start;
    while (!start) {
        const auto answer = prompt.input({.text = dateQuestion, .preset = {}});
        if (!answer || answer->empty())
            return false;
        start = fieldDate(*answer);
    }
    // With a time in its header the text reads as a recording.
    setHeaderTime(gText, *start);
    const auto recording = readDataText(gText);
    if (recording) {
        const char letter = recording->facts.modeLetter;
        const auto count = static_cast<std::int64_t>(recording->readings.size());
        setHeaderTime(gText, *start + modeRow(letter).minutes * count / valuesPerInterval(letter));
    }
    return true;
}

} // namespace tally
