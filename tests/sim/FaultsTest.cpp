// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/Faults.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tally {
namespace {

using namespace sim;

TEST(Faults, ReadsFlagsNumbersAndStalls) {
    Faults faults;
    for (const char* text : {"low-battery", "noise=20", "cable=5000", "stall=500:1500", "stall=600:0"})
        addFault(faults, text);
    EXPECT_TRUE(faults.lowBattery);
    EXPECT_EQ(faults.noise, 20);
    EXPECT_EQ(faults.cable, 5000);
    ASSERT_EQ(faults.stalls.size(), 2U);
    EXPECT_EQ(faults.stalls[0].at, 500);
    EXPECT_EQ(faults.stalls[0].milliseconds, 1500);
}

TEST(Faults, RefusesWhatIsNone) {
    Faults faults;
    for (const char* text :
         {"", "low-batery", "noise", "noise=", "noise=x", "noise=-1", "noise=2x", "noise=1000001", "silent=1",
          "stall=500", "stall=:", "cable=99999999999999999999", "=3"})
        EXPECT_THROW(addFault(faults, text), std::invalid_argument) << text;
}

TEST(Faults, ExplainsEveryFaultOnALineOfItsOwn) {
    const std::string help = faultHelp();
    EXPECT_NE(help.find("  stall=N:MS        a pause of MS milliseconds"), std::string::npos);
    std::size_t from = 0;
    while (from < help.size()) {
        const std::size_t end = help.find('\n', from);
        const std::string name = help.substr(from + 2, help.find_first_of(" =", from + 2) - from - 2);
        const bool argument = help[from + 2 + name.size()] == '=';
        Faults faults;
        EXPECT_NO_THROW(addFault(faults, name + (argument ? (name == "stall" ? "=1:1" : "=1") : ""))) << name;
        from = end + 1;
    }
}

} // namespace
} // namespace tally
