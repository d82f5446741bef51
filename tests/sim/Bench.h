// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sim/Instrument.h"

#include <string>

namespace tally::testing {

// Noon of a day in 2024, so that header times can be written down by hand.
inline ReadingTime noon() {
    return toReadingTime({2024, 3, 15, 12, 0});
}

// An instrument with the given readings (oldest first), 15-minute averages.
inline sim::InstrumentSetup setupWith(int type, std::vector<int> readings) {
    sim::InstrumentSetup setup = sim::setupOf(type, noon(), 0);
    setup.memory.readings = std::move(readings);
    return setup;
}

// A header in the current layout: code, mode, serial 1234, time, battery 3E8.
inline std::string currentHeader(const std::string& code, char mode, const std::string& time) {
    return code + mode + "   1234" + std::string(19, ' ') + time + "   Vbatt 3E8";
}

// An instrument whose port is opened at 0 at its own rate.
struct OpenInstrument {
    explicit OpenInstrument(sim::InstrumentSetup setup) : instrument(std::move(setup)) {
        instrument.opened(0);
        instrument.rate(0, instrument.ownRate());
    }
    std::string until(std::int64_t time) { return instrument.sent(time); }

    sim::Instrument instrument;
};

} // namespace tally::testing
