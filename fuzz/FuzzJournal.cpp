// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "link/JournalText.h"

#include <string>

// What was read of any lines is read alike when it is written again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tally::fuzz::require;
    const std::string lines(tally::fuzz::asText(data, size));
    const tally::JournalRecord record = tally::readJournal(lines);
    std::string written = tally::journalStart(record.header);
    written += tally::journalPart(record.partStart, record.header.settings);
    if (record.clockDifference)
        written += tally::journalClock(*record.clockDifference);
    if (record.state)
        written += tally::journalState(*record.state);
    const tally::JournalRecord again = tally::readJournal(written);
    require(again.partStart == record.partStart && again.header.settings == record.header.settings, "parts");
    require(again.header.commPort == record.header.commPort, "port");
    require(again.state == record.state && again.clockDifference == record.clockDifference,
            "state and clock");
    tally::JournalEntry entry;
    tally::describe(entry, lines);
    require(entry.model.size() <= 3 && entry.serial.size() <= 4, "fields have their length");
    return 0;
}
