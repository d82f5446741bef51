// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "link/Runspec.h"

#include <string>

// A flag leaves its default only when the report names its line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tally::fuzz::require;
    const tally::Runspec found = tally::readRunspec(tally::fuzz::asText(data, size));
    const bool nothing = found.report.starts_with("No valid run specs found");
    require(nothing == (found.flags == tally::RunFlags()), "the message tells whether a flag is set");
    const bool named = found.report.find("enableErrorReport=False") != std::string::npos;
    require(found.flags.enableErrorReport != named, "the report names what is set");
    return 0;
}
