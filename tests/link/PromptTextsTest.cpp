// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/PromptTexts.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

const std::string switchLines = "                                             \r\n"
                                "   (If the interface has a transfer switch,  \r\n"
                                "    make sure it's set to 'TRANSFER'.)       \r\n"
                                "                                             \r\n";
const std::string quitLine = "     Hit 'Cancel' or use ESC key to quit     ";

TEST(PromptTextsTest, OkComesFirstForTheOlderTypes) {
    InstrumentState instrument;
    instrument.instSelection = 4;
    instrument.gCableFirst = false;
    EXPECT_EQ(connectionPrompt(instrument), "   Press 'OK'.                               \r\n"
                                            "   Then insert the cable into the instrument.\r\n" +
                                                switchLines + quitLine);
}

TEST(PromptTextsTest, TheCableComesFirstForTheNewerTypes) {
    InstrumentState instrument;
    instrument.instSelection = 8;
    instrument.gCableFirst = true;
    EXPECT_EQ(connectionPrompt(instrument), "   Insert the cable into the instrument.     \r\n"
                                            "             Then Press 'OK'.                \r\n" +
                                                switchLines + quitLine);
}

TEST(PromptTextsTest, AutomaticSelectionTellsItsSettingsUnlessLeftOut) {
    InstrumentState instrument;
    instrument.instSelection = 11;
    instrument.gCableFirst = true;
    instrument.portSettings = "115200,N,8,1";
    const std::string cable = "   Insert the cable into the instrument.     \r\n"
                              "             Then Press 'OK'.                \r\n" +
                              switchLines;
    EXPECT_EQ(connectionPrompt(instrument),
              cable + "Auto select: Initial port settings = 115200,N,8,1\r\n" + quitLine);
    EXPECT_EQ(connectionPrompt(instrument, false), cable + quitLine);
}

TEST(PromptTextsTest, EveryPromptLineHas45Columns) {
    InstrumentState instrument;
    for (const bool cableFirst : {false, true}) {
        instrument.gCableFirst = cableFirst;
        std::string text = connectionPrompt(instrument) + "\r\n";
        for (std::size_t end; (end = text.find("\r\n")) != std::string::npos; text.erase(0, end + 2))
            EXPECT_EQ(end, 45U) << text;
    }
}

TEST(PromptTextsTest, OtherTexts) {
    EXPECT_EQ(removeCableText(), "       RETURN THE SWITCH TO 'STANDBY'   \r\n"
                                 "           OR REMOVE THE CABLE NOW       ");
    InstrumentState instrument;
    instrument.gCommPort = 3;
    EXPECT_EQ(portInUseText(instrument), "COM3  in use\r\n Cancel or Escape to quit");
    instrument.gCommPort = 0;
    instrument.devicePath = "/dev/ttyUSB0";
    EXPECT_EQ(portInUseText(instrument), "/dev/ttyUSB0  in use\r\n Cancel or Escape to quit");
    EXPECT_STREQ(lowBatteryText, "    LOW INSTRUMENT BATTERY    ");
    EXPECT_STREQ(badPortText, "Communication port not valid.\r\nTry selecting a different COM port");
}

} // namespace
} // namespace tally
