// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/InstrumentState.h"

#include <string>

namespace tally {

// The connection prompt, laid out for a label of 45 columns: what to press and plug in what order, the
// transfer switch, for the automatic type its initial settings (unless left out, as recover does), how to
// quit. Lines are parted by CR LF.
std::string connectionPrompt(const InstrumentState& instrument, bool autoLine = true);

// The box that ends a download: back to standby or remove the cable.
std::string removeCableText();

// "COM3", or the path of a device that was given by it (COM port 0).
std::string portName(int commPort, const std::string& devicePath);
std::string portName(const InstrumentState& instrument);

// "COM3  in use" and how to cancel, for the status line of the main window.
std::string portInUseText(const InstrumentState& instrument);

// What the connection prompt gives way to: while nothing has come yet, and while it comes.
std::string waitingText(const InstrumentState& instrument);
extern const char* const receivingText;

extern const char* const lowBatteryText;
extern const char* const badPortText;    // a port that cannot be opened
extern const char* const tryAnotherType; // the closing lines of messages about responses

} // namespace tally
