// SPDX-License-Identifier: GPL-3.0-or-later
#include "DataFileRules.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tally::fuzz::requireRules(tally::fuzz::asText(data, size));
    return 0;
}
