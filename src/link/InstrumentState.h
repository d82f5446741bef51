// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace tally {

// The port and the instrument type in force: what the selection dialogs set and every session reads.
struct InstrumentState {
    std::int16_t instSelection = 0; // type code 0 to 11; 0 for none chosen
    std::string portSettings = "9600,N,8,1";
    std::int32_t maxSamples = 10710;
    std::int16_t instAutoCurrent = 7; // automatic selection: the type, 7 or 8, whose settings worked last
    std::string portSettingsCustom = "9600,N,8,1";
    std::int32_t maxSamplesCustom = 10710;
    int gCommPort = 1;           // 1 to 8; 0 for a device that is given by its path
    std::string devicePath = {}; // of that device
    bool gCableFirst = true;     // the cable goes in before OK is pressed
};

} // namespace tally
