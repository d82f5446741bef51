// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "control/ReadBack.h"
#include "core/Fault.h"

// Whatever an instrument reads back is reported, or its mode is outside the table; what stands after ctrl/Z
// says nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tally::fuzz::require;
    const std::string answer(tally::fuzz::asText(data, size));
    try {
        const tally::ReadBack read = tally::readBack(answer);
        require(read.report.starts_with("Initialization complete. "), "a read-back has a report");
        require(read.blankMode == (answer.at(3) == ' '), "a blank mode is a blank");
        require(tally::readBack(answer + "\x1a" + answer).report == read.report, "ctrl/Z ends it");
    } catch (const tally::Fault& fault) {
        require(fault.number() == 9, "a mode may be outside the table");
    }
    return 0;
}
