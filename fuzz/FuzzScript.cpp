// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Script.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

// Any text is read as a script or refused with words; following one never hangs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tally::sim;
    std::vector<Step> steps;
    try {
        steps = parseScript(std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const std::invalid_argument& problem) {
        if (std::string(problem.what()).empty())
            std::abort();
        return 0;
    }
    InstrumentSetup setup = setupOf(7, {}, 3);
    ScriptedInstrument peer(setup, steps);
    std::int64_t time = 0;
    peer.opened(time);
    peer.rate(time, peer.ownRate());
    for (int i = 0; i < 50; ++i) {
        time += 997;
        peer.sent(time);
        if (i % 10 == 9) {
            peer.closed(time);
            peer.opened(time);
        }
    }
    return 0;
}
