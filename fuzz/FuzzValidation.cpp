// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "core/Fault.h"
#include "core/Prompt.h"
#include "link/InsertErrors.h"
#include "link/Validation.h"
#include "link/ValidationReport.h"

#include <string>

namespace {

class SilentPrompt : public tally::Prompt {
public:
    tally::Answer show(const tally::Message&) override { return tally::Answer::Yes; }
    std::optional<std::string> input(const tally::InputQuestion&) override { return {}; }
    std::optional<std::string> chooseFile(const tally::FileQuestion&) override { return {}; }
};

tally::RunFlags flagsOf(std::uint8_t bits) {
    return {.enableAddedReading = (bits & 1) != 0,
            .enableMissingReading = (bits & 2) != 0,
            .enableChangeTo999 = (bits & 4) != 0,
            .enableAddedBadChar = (bits & 8) != 0,
            .enableReadingOver999 = (bits & 16) != 0,
            .enableAddedCtrlZ = (bits & 32) != 0,
            .enableMissingCtrlZ = (bits & 64) != 0};
}

} // namespace

// The first byte says which faults are planted. Converting the readings of 999 leaves none of them and
// changes no other count.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    using tally::fuzz::require;
    std::string text(tally::fuzz::asText(data + 1, size - 1));
    SilentPrompt prompt;
    tally::InsertErrors(text, flagsOf(data[0]), prompt);
    try {
        const std::size_t length = text.size();
        const tally::ValidationCounts left = tally::validate(text, false);
        const tally::ValidationCounts changed = tally::validate(text, true);
        tally::ValidationCounts again = tally::validate(text, true);
        require(left == changed && text.size() == length, "converting does not change what is counted");
        require(again.count999 == 0, "none of them is left");
        again.count999 = left.count999;
        require(again == left, "other counts stay");
        require(left.clean() == tally::errorReport(left).empty(), "only errors are reported");
    } catch (const tally::Fault& fault) {
        require(fault.number() == 6, "a counter may overflow");
    }
    return 0;
}
