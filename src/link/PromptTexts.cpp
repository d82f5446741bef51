// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/PromptTexts.h"

#include "link/Instruments.h"

namespace tally {

const char* const lowBatteryText = "    LOW INSTRUMENT BATTERY    ";

const char* const badPortText = "Communication port not valid.\r\n"
                                "Try selecting a different COM port";

const char* const tryAnotherType = "Check that the instrument is connected or try selecting some other\r\n"
                                   " instrument type (using Options > Instrument Selection).";

std::string connectionPrompt(const InstrumentState& instrument, bool autoLine) {
    std::string text = instrument.gCableFirst ? "   Insert the cable into the instrument.     \r\n"
                                                "             Then Press 'OK'.                \r\n"
                                              : "   Press 'OK'.                               \r\n"
                                                "   Then insert the cable into the instrument.\r\n";
    text += "                                             \r\n"
            "   (If the interface has a transfer switch,  \r\n"
            "    make sure it's set to 'TRANSFER'.)       \r\n"
            "                                             \r\n";
    if (autoLine && instrument.instSelection == autoSelectType)
        text += "Auto select: Initial port settings = " + instrument.portSettings + "\r\n";
    return text + "     Hit 'Cancel' or use ESC key to quit     ";
}

std::string waitingText(const InstrumentState& instrument) {
    return instrument.gCableFirst ? "Waiting for the instrument to send its recording."
                                  : "Now insert the cable into the instrument.";
}

const char* const receivingText = "The instrument is sending. Leave the cable in until the end.";

std::string removeCableText() {
    return "       RETURN THE SWITCH TO 'STANDBY'   \r\n"
           "           OR REMOVE THE CABLE NOW       ";
}

std::string portName(int commPort, const std::string& devicePath) {
    return commPort == 0 ? devicePath : "COM" + std::to_string(commPort);
}

std::string portName(const InstrumentState& instrument) {
    return portName(instrument.gCommPort, instrument.devicePath);
}

std::string portInUseText(const InstrumentState& instrument) {
    return portName(instrument) + "  in use\r\n Cancel or Escape to quit";
}

} // namespace tally
