// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "core/Header.h"
#include "link/HeaderScan.h"

#include <string>

// What is kept differs from what came in the case of one letter at most, and the first line begins with it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tally::fuzz::require;
    tally::HeaderScan scan;
    for (std::size_t i = 0; i < size; ++i) {
        const char c = static_cast<char>(data[i]);
        const char kept = scan.feed(c);
        const bool isStart = scan.started() && scan.startIndex() == i;
        require(kept == c || (isStart && scan.lowBattery()), "only a lower-case initial is changed");
        require(!isStart || (tally::isFamilyInitial(c) && scan.line() == std::string(1, kept)),
                "a recording starts with an initial");
    }
    require(scan.count() == size && scan.started() != scan.line().empty(), "every character is counted");
    require(scan.token() != tally::HeaderScan::Token::valid || scan.line().size() >= 3,
            "a token has three characters");
    return 0;
}
