// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/ChartFile.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// Any bytes are read or refused with a message; what was read is written and read again as the same text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto result = tally::ChartFile::read(std::string(reinterpret_cast<const char*>(data), size));
    if (result.contents.has_value() != result.why.empty())
        std::abort();
    if (!result.contents)
        return 0;
    const std::string written = tally::ChartFile::write(result.contents->plot, result.contents->notes);
    const auto again = tally::ChartFile::read(written);
    if (!again.contents || tally::ChartFile::write(again.contents->plot, again.contents->notes) != written)
        std::abort();
    return 0;
}
