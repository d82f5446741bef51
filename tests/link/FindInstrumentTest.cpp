// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/FindInstrument.h"

#include "LinkBench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace tally {
namespace {

using ::testing::HasSubstr;

const std::string header = "KWTa   4127                   03-15-24 12:00   Vbatt 3E8\r";

class Ports : public PortCatalogue {
public:
    std::vector<PortDevice> all;
    std::map<std::string, PortPresence> notFree;

    std::vector<PortDevice> devices() const override { return all; }
    PortPresence presence(const std::string& path) const override {
        const auto found = notFree.find(path);
        return found == notFree.end() ? PortPresence::free : found->second;
    }
};

struct FindInstrumentTest : ::testing::Test, testing::LinkBench {
    // What is heard when a port is opened at a rate.
    std::map<std::pair<std::string, std::string>, std::string> heard;

    void SetUp() override {
        instrument.instSelection = 5;
        instrument.gCommPort = 3;
        line.onOpen = [this](const std::string& settings) {
            const std::string text = heard[{instrument.devicePath, settings}];
            waiter.after(500, [this, text] { line.send(text); });
        };
    }
    SessionResult<std::vector<FoundInstrument>> find(const std::vector<std::string>& paths) {
        std::vector<PortDevice> ports;
        for (const std::string& path : paths)
            ports.push_back({.path = path, .description = "adapter", .adapter = true});
        return FindInstrument(session, panel).find(ports);
    }
};

TEST_F(FindInstrumentTest, TriesEveryPortAtBothRatesAndSendsNothing) {
    heard[{"/dev/b", "115200,N,8,1"}] = header;
    heard[{"/dev/c", "9600,N,8,1"}] = "pQXa   0815                   03-15-24 12:00   Vbatt 2BC\rT: 1";
    const auto found = find({"/dev/a", "/dev/b", "/dev/c"});
    ASSERT_TRUE(found);
    ASSERT_EQ(found->size(), 2U);
    EXPECT_EQ(found->at(0).text(), "/dev/b (adapter): PQX-K4-W, serial number 4127, Vbatt = 3.806 volts");
    EXPECT_EQ(found->at(0).type, 8);
    EXPECT_EQ(found->at(1).text(),
              "/dev/c (adapter): PQX, serial number 0815, Vbatt = 2.709 volts, LOW BATTERY");
    EXPECT_EQ(line.written, "");
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_FALSE(line.isOpen());
    // Two rates of 2.5 s and a reset of 5 s at the first port. The second sends during its reset. 0.5 s.
    EXPECT_EQ(waiter.now(), 10000 + 7500 + 500);
}

TEST_F(FindInstrumentTest, TypeAndPortInForceStayAsTheyWere) {
    heard[{"/dev/a", "115200,N,8,1"}] = header;
    ASSERT_TRUE(find({"/dev/a"}));
    EXPECT_EQ(instrument.instSelection, 5);
    EXPECT_EQ(instrument.gCommPort, 3);
    EXPECT_EQ(instrument.devicePath, "");
    EXPECT_EQ(instrument.portSettings, "9600,N,8,1");
}

TEST_F(FindInstrumentTest, NoiseIsNoInstrumentAndAPortThatCannotBeOpenedIsLeftOut) {
    heard[{"/dev/a", "9600,N,8,1"}] = "K\x80\xffP\rH\x1a\rnoise";
    const auto noise = find({"/dev/a"});
    ASSERT_TRUE(noise);
    EXPECT_TRUE(noise->empty());
    line.failOpen = Fault(8005, "Port already open");
    line.openProblem = "/dev/a is in use by another program.";
    const auto busy = find({"/dev/a"});
    ASSERT_TRUE(busy);
    EXPECT_TRUE(busy->empty());
    EXPECT_THAT(panel.log, HasSubstr("/dev/a is in use by another program."));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(FindInstrumentTest, ACancelEndsTheSearchAtOnce) {
    waiter.cancelAt(4000);
    const auto found = find({"/dev/a", "/dev/b"});
    ASSERT_FALSE(found);
    EXPECT_EQ(found.error().kind, EndKind::cancelled);
    EXPECT_EQ(waiter.now(), 4000);
    EXPECT_FALSE(line.isOpen());
}

TEST(PortsToTry, AreTheFreeAdaptersOrTheOthers) {
    Ports ports;
    PortDevice own{"/dev/ttyS0", ""};
    PortDevice free{"/dev/ttyUSB0", ""};
    PortDevice used{"/dev/ttyUSB1", ""};
    free.adapter = true;
    used.adapter = true;
    ports.all = {own, free, used};
    ports.notFree["/dev/ttyUSB1"] = PortPresence::inUse;
    ASSERT_EQ(portsToTry(ports, true).size(), 1U);
    EXPECT_EQ(portsToTry(ports, true)[0].path, "/dev/ttyUSB0");
    ASSERT_EQ(portsToTry(ports, false).size(), 1U);
    EXPECT_EQ(portsToTry(ports, false)[0].path, "/dev/ttyS0");
}

TEST(TypeOfModel, FollowsTheCodeAndTheRate) {
    const char* const slow = "9600,N,8,1";
    EXPECT_EQ(typeOfModel("HV ", slow), 1);
    EXPECT_EQ(typeOfModel("HVA", slow), 2);
    EXPECT_EQ(typeOfModel("HTV", slow), 3);
    EXPECT_EQ(typeOfModel("PQA", slow), 4);
    EXPECT_EQ(typeOfModel("PQD", slow), 5);
    EXPECT_EQ(typeOfModel("PTV", slow), 6);
    EXPECT_EQ(typeOfModel("KWT", slow), 7);
    EXPECT_EQ(typeOfModel("KWT", "115200,N,8,1"), 8);
    EXPECT_EQ(typeOfModel("PQX", slow), 10);
}

} // namespace
} // namespace tally
