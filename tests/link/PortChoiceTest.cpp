// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/PortChoice.h"

#include "core/Fault.h"
#include "support/MemorySettings.h"
#include "support/QueuedPrompt.h"
#include "support/VirtualLine.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using namespace testing;

const std::pair<std::string, std::string> portKey = {"Comm", "TLY.MSComm1.CommPort"};

class Catalogue : public PortCatalogue {
public:
    std::vector<PortDevice> listed;
    PortPresence state = PortPresence::free;
    std::vector<PortDevice> devices() const override { return listed; }
    PortPresence presence(const std::string&) const override { return state; }
};

class PortChoice : public ::testing::Test {
protected:
    MemorySettings settings;
    QueuedPrompt prompt;
    VirtualWaiter waiter;
    VirtualLine line{waiter};
    InstrumentState instrument;
};

#ifndef _WIN32
TEST_F(PortChoice, EachPortHasItsOwnDevice) {
    EXPECT_EQ(devicePath(1, settings), "/dev/ttyS0");
    EXPECT_EQ(devicePath(8, settings), "/dev/ttyS7");
}
#endif

TEST_F(PortChoice, AnAssignedDeviceTakesThePlaceOfTheDefault) {
    assignDevice(3, "/dev/serial/by-id/usb-adapter", settings);
    EXPECT_EQ(devicePath(3, settings), "/dev/serial/by-id/usb-adapter");
    EXPECT_EQ((settings.values[{"Comm", "COM3"}]), "/dev/serial/by-id/usb-adapter");
    EXPECT_EQ(devicePath(2, settings), defaultDevice(2));
}

TEST_F(PortChoice, AssigningTheDefaultOrNothingTakesTheAssignmentBack) {
    assignDevice(3, "/dev/pts/7", settings);
    assignDevice(3, defaultDevice(3), settings);
    EXPECT_EQ((settings.values[{"Comm", "COM3"}]), "");
    assignDevice(3, "/dev/pts/7", settings);
    assignDevice(3, "", settings);
    EXPECT_EQ(devicePath(3, settings), defaultDevice(3));
}

TEST_F(PortChoice, NumbersOutsideOneToEightAreFaults) {
    EXPECT_THROW(devicePath(0, settings), Fault);
    EXPECT_THROW(devicePath(9, settings), Fault);
}

TEST_F(PortChoice, APortSaysItsDeviceItsAdapterAndWhetherItCanBeUsed) {
    Catalogue catalogue;
    catalogue.listed = {{"/dev/ttyUSB0", "Adapter"}};
    assignDevice(2, "/dev/ttyUSB0", settings);
    EXPECT_EQ(portState(2, catalogue, settings).text(), "/dev/ttyUSB0 (Adapter): free");
    EXPECT_TRUE(portState(2, catalogue, settings).assigned);
    catalogue.state = PortPresence::notThere;
    EXPECT_EQ(portState(1, catalogue, settings).text(), defaultDevice(1) + ": not there");
    EXPECT_FALSE(portState(1, catalogue, settings).assigned);
    catalogue.state = PortPresence::inUse;
    EXPECT_EQ(portState(1, catalogue, settings).text(), defaultDevice(1) + ": in use by another program");
    catalogue.state = PortPresence::noPermission;
    EXPECT_EQ(portState(1, catalogue, settings).text(),
              defaultDevice(1) + ": no permission: add yourself to group dialout and log in again");
}

TEST_F(PortChoice, ADeviceThatGoesByItsNameShowsNoPath) {
    Catalogue catalogue;
    catalogue.listed = {{"/home/me/.cache/here", "simulated instrument", true}};
    EXPECT_EQ(catalogue.listed[0].text(), "simulated instrument");
    assignDevice(2, "/home/me/.cache/here", settings);
    EXPECT_EQ(portState(2, catalogue, settings).text(), "simulated instrument: free");
    EXPECT_EQ(portState(2, catalogue, settings).device, "/home/me/.cache/here");
}

TEST_F(PortChoice, TheStoredPortIsANumberOneToEightElseOne) {
    EXPECT_EQ(storedCommPort(settings), 1);
    for (const char* text : {"0", "9", "10", "abc", "", "-1", " 2", "2.5"}) {
        settings.values[portKey] = text;
        EXPECT_EQ(storedCommPort(settings), 1) << text;
    }
    settings.values[portKey] = "8";
    EXPECT_EQ(storedCommPort(settings), 8);
}

TEST_F(PortChoice, ChoosingCom8TriesAndStoresEight) {
    EXPECT_TRUE(choosePort(8, instrument, line, settings, prompt));
    EXPECT_EQ(instrument.gCommPort, 8);
    EXPECT_EQ(settings.values[portKey], "8");
    EXPECT_EQ(line.count("CommPort 8"), 1);
    EXPECT_EQ(line.count("PortOpen true"), 1);
    EXPECT_FALSE(line.isOpen());
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(PortChoice, ChoosingNothingTriesAndStoresThePortInForce) {
    instrument.gCommPort = 5;
    EXPECT_TRUE(choosePort({}, instrument, line, settings, prompt));
    EXPECT_EQ(line.count("CommPort 5"), 1);
    EXPECT_EQ(settings.values[portKey], "5");
}

TEST_F(PortChoice, APortThatCannotBeOpenedLeavesTheStoredOneInForce) {
    settings.values[portKey] = "3";
    instrument.gCommPort = 3;
    line.failOpen = Fault(8002, "Invalid port number");
    EXPECT_FALSE(choosePort(4, instrument, line, settings, prompt));
    EXPECT_EQ(instrument.gCommPort, 3);
    EXPECT_EQ(settings.values[portKey], "3");
    ASSERT_EQ(prompt.shown.size(), 1U);
    EXPECT_EQ(prompt.shown[0].text, "Invalid Port");
    EXPECT_EQ(prompt.shown[0].buttons, Buttons::Ok);
}

#ifndef _WIN32
TEST_F(PortChoice, AFoundDeviceTakesItsOwnPortOrOneWhoseDeviceIsNotThere) {
    Catalogue catalogue;
    EXPECT_EQ(takePort("/dev/ttyS4", catalogue, settings), 5);
    EXPECT_EQ(storedCommPort(settings), 5);
    EXPECT_EQ(takePort("/dev/ttyUSB0", catalogue, settings), 8);
    EXPECT_EQ(devicePath(8, settings), "/dev/ttyUSB0");
    EXPECT_EQ(takePort("/dev/ttyUSB0", catalogue, settings), 8);
    catalogue.state = PortPresence::notThere;
    EXPECT_EQ(takePort("/dev/ttyUSB1", catalogue, settings), 1);
    EXPECT_EQ(devicePath(1, settings), "/dev/ttyUSB1");
}
#endif

} // namespace
} // namespace tally
