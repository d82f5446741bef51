// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/InsertErrors.h"

#include <algorithm>
#include <array>

namespace tally {

namespace {

const char* const digits = "0123456789";

struct PlantedFault {
    bool RunFlags::*flag;
    bool cuts; // the reading at the insertion point
    const char* text;
};

// Fault k stands at k - 1; fault 7, which takes the terminator away, is not one of these.
constexpr std::array<PlantedFault, 6> plantedFaults = {{{&RunFlags::enableAddedReading, false, " 123 "},
                                                        {&RunFlags::enableMissingReading, true, ""},
                                                        {&RunFlags::enableChangeTo999, true, " 999 "},
                                                        {&RunFlags::enableAddedBadChar, false, "A"},
                                                        {&RunFlags::enableReadingOver999, true, " 1234 "},
                                                        {&RunFlags::enableAddedCtrlZ, false, "\x1a"}}};

// Where line `number` (from 1) of the data section begins; npos when there are not so many lines.
std::size_t lineStart(const std::string& text, std::size_t section, std::size_t number) {
    std::size_t at = section;
    for (std::size_t line = 1; line < number; ++line) {
        at = text.find('\n', at);
        if (at == std::string::npos)
            return at;
        ++at;
    }
    return at;
}

// Plants at the first reading of a line, or at its begin when it has none.
void plant(std::string& text, std::size_t line, const PlantedFault& fault) {
    const std::size_t end = std::min(text.find('\n', line), text.size());
    std::size_t at = text.find_first_of(digits, line);
    std::size_t length = 0;
    if (at >= end)
        at = line;
    else if (fault.cuts)
        length = std::min(text.find_first_not_of(digits, at), text.size()) - at;
    text.replace(at, length, fault.text);
}

} // namespace

void InsertErrors(std::string& gText, const RunFlags& flags, Prompt& prompt) {
    if (!flags.anyFault())
        return;
    const std::size_t mark = gText.find("T:");
    if (mark == std::string::npos) {
        prompt.tell("InsertErrors(): Couldn't find 'T:' in gText$");
        return;
    }
    for (std::size_t k = 1; k <= plantedFaults.size(); ++k) {
        const PlantedFault& fault = plantedFaults[k - 1];
        const std::size_t line = lineStart(gText, mark + 2, k);
        if (flags.*fault.flag && line != std::string::npos)
            plant(gText, line, fault);
    }
    if (flags.enableMissingCtrlZ)
        std::erase(gText, '\x1a');
}

} // namespace tally
