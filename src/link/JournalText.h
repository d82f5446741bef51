// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Journal.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tally {

// What is written down beside the characters of a reception: lines "key value", only ever added to, so that a
// program that is killed loses at most the line it was writing.
struct JournalRecord {
    JournalHeader header;
    std::uint64_t partStart = 0; // where the characters of the last port settings begin
    std::optional<std::int64_t> clockDifference;
    std::optional<JournalState> state; // none while it is received, or after a kill
};

std::string journalStart(const JournalHeader& header);
std::string journalPart(std::uint64_t start, const std::string& settings);
std::string journalClock(std::int64_t minutes);
std::string journalState(JournalState state);

// Reads the lines; what is unknown, damaged or cut short is left out.
JournalRecord readJournal(std::string_view lines);

// Fills model and serial number from the first characters of a reception.
void describe(JournalEntry& entry, std::string_view characters);

} // namespace tally
