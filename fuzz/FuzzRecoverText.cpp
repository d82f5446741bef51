// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "control/RecoverText.h"
#include "core/Fault.h"

namespace {

std::size_t differences(const std::string& a, const std::string& b) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        count += a[i] != b[i] ? 1U : 0U;
    return count;
}

} // namespace

// A received text is refused by a fault, or recovered with nothing changed but its 14 characters of time.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tally::fuzz::require;
    const std::string text(tally::fuzz::asText(data, size));
    try {
        const int readings = tally::countReadings(tally::quotedText(text));
        require(readings >= 0 && readings <= 42966, "readings are counted up to their limit");
        const tally::RecoverHeader header = tally::recoverHeader(text);
        require(header.mode >= 'a' && header.mode <= 'l', "a header has a mode of the table");
        require(tally::overwritten(header.mode, 1, 1) !=
                    (std::string("defjkl").find(header.mode) < std::string::npos),
                "only a continuous recording is overwritten");
        const tally::RecoveredText recovered = tally::recoverText(text, header, readings);
        require(recovered.text.size() == text.size(), "the text keeps its length");
        require(differences(recovered.text, text) <= 14, "the time alone is changed");
        require(recovered.text.find(tally::headerTime(recovered.stopped)) != std::string::npos,
                "the stop time stands in the text");
    } catch (const tally::Fault& fault) {
        require(fault.number() == 6 || fault.number() == 9 || fault.number() == 13,
                "a text is refused for a reading, its mode or its time");
    }
    return 0;
}
