// SPDX-License-Identifier: GPL-3.0-or-later
// The data reader at the end of its work list: the input again and again behind a header, until it holds more
// items than the reader takes.
#include "DataFileRules.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t enough = 300'000;
    const auto part = tally::fuzz::asText(data, size);
    if (part.empty())
        return 0;
    std::string text = "PQXg   1234                   03-15-24 10:00   Vbatt 3E8\r";
    while (text.size() < enough)
        text += part;
    tally::fuzz::requireRules(text);
    return 0;
}
