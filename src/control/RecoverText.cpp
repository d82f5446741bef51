// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/RecoverText.h"

#include "core/DataText.h"
#include "core/Fault.h"
#include "core/Header.h"
#include "core/ModeTable.h"
#include "core/Recordings.h"

#include <algorithm>
#include <variant>

namespace tally {

namespace {

std::size_t startOf(std::string_view text) {
    const auto found = std::find_if(text.begin(), text.end(), isFamilyInitial);
    return static_cast<std::size_t>(found - text.begin());
}

} // namespace

std::optional<char> recoverCharacter(std::string_view text, std::size_t offset) {
    const std::size_t start = startOf(text);
    return start + offset < text.size() ? std::optional(text[start + offset]) : std::nullopt;
}

RecoverHeader recoverHeader(std::string_view text) {
    const auto letter = recoverCharacter(text, column::mode.at);
    if (!letter || !isMode(lowerCase(*letter)))
        throw fault::subscript();
    const auto start = parseHeaderTime(headerField(text.substr(startOf(text)), column::time));
    if (!start)
        throw fault::typeMismatch();
    return {lowerCase(*letter), *start};
}

std::string quotedText(std::string_view text) {
    return "\"" + std::string(text) + "\"\r\n";
}

int countReadings(std::string_view file) {
    const auto read = readDataText(file);
    if (const auto* recording = std::get_if<Recording>(&read))
        return recording->facts.count;
    if (std::get<DataRefusal>(read) == DataRefusal::outOfRange)
        throw fault::overflow();
    return 0;
}

bool overwritten(char mode, int readings, std::int32_t maxSamples) {
    return readings >= maxSamples && modeRow(mode).whenFull != "Stop";
}

ReadingTime stopTime(const RecoverHeader& header, int readings) {
    FileFacts facts;
    facts.modeLetter = header.mode;
    facts.start = header.start;
    facts.count = readings;
    return timeOf(facts, readings);
}

RecoveredText recoverText(std::string text, const RecoverHeader& header, int readings) {
    const ReadingTime stopped = stopTime(header, readings);
    text.replace(startOf(text) + column::time.at, column::time.length, headerTime(stopped));
    return {std::move(text), header.start, stopped, readings};
}

} // namespace tally
