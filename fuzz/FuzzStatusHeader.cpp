// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "core/Fault.h"
#include "core/Header.h"
#include "link/InformationReport.h"
#include "link/ReceivedText.h"
#include "link/StatusHeader.h"

#include <string>

// Any header is shown, refused as one that cannot be read or outside the mode table, and a time written into
// it is read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tally::fuzz::require;
    std::string line(tally::fuzz::asText(data, size));
    try {
        if (tally::hasStatusFields(line)) {
            require(size > 3, "a header reaches its mode");
            require(!tally::readStatusHeader(line, false).text().empty(), "a header has a text");
        }
    } catch (const tally::Fault& fault) {
        require(fault.number() == 9, "a mode may be outside the table");
    }
    if (!tally::upperCaseModel(line))
        return 0;
    const tally::ReadingTime time = tally::toReadingTime({2024, 3, 15, 14, 5});
    tally::setHeaderTime(line, time);
    require(tally::timeOf(tally::headerOf(line)) == time, "what is written is read");
    try {
        require(!tally::informationReport(line).empty(), "a header has a report");
    } catch (const tally::Fault& fault) {
        require(fault.number() == 9, "a mode may be outside the table");
    }
    return 0;
}
