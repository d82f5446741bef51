// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Header.h"
#include "core/Prompt.h"
#include "core/ReadingTime.h"
#include "link/SessionEnd.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// Offsets from the start of the recording, which is offset 0.
constexpr std::size_t recoverTypeOffset = column::type.at;
constexpr std::size_t recoverMarkOffset = column::afterBrief.at; // "T" when the instrument can be recovered

// Why a text is not one that can be recovered.
enum class RecoverRefusal { notValid, notVoltmeter, notRecoverable };
// The words of a refusal, as a message box has them, and its end.
SessionEnd recoverEnd(RecoverRefusal refusal);

// Looks at the character that stands `offset` characters after the start of a recording (0 before it): what
// it says against recovering from an instrument of this type.
std::optional<RecoverRefusal> recoverRefusal(std::size_t offset, char c, int instrumentType);

// What the header of a received text says; a blank mode letter is "a". Throws Subscript for a mode letter
// outside the mode table, Type mismatch for a time that is none.
struct RecoverHeader {
    char mode = 'a'; // lower case
    ReadingTime start;
};
RecoverHeader recoverHeader(std::string_view text);

// How the text stands in the temporary file, and how many readings that file holds (at most 42,966). Throws
// Overflow for a reading that no recording can hold.
std::string quotedText(std::string_view text);
int countReadings(std::string_view file);

// What was damaged on the line, as far as that can be seen: lines of another number of readings than ten, and
// readings that are no numbers. Words for a warning; empty when there is nothing.
std::string damageText(std::string_view text);
void warnOfDamage(std::string_view text, Prompt& prompt);

// Whether a recording of so many readings has overwritten its own beginning, so that its end has no time.
bool overwritten(char mode, int readings, std::int32_t maxSamples);

// When the recording stopped: the start and interval x readings / values of an interval, in whole minutes.
ReadingTime stopTime(const RecoverHeader& header, int readings);

// A text whose header carries the time at which its recording stopped.
struct RecoveredText {
    std::string text; // bytes
    ReadingTime start;
    ReadingTime stopped;
    int readings = 0;
};
RecoveredText recoverText(std::string text, const RecoverHeader& header, int readings);

} // namespace tally
