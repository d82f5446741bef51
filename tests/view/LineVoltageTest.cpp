// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/LineVoltage.h"

#include "core/Fault.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(LineVoltage, DefaultWhereNothingIsStored) {
    testing::MemorySettings settings;
    EXPECT_EQ(vlineOf(settings), "13800");
    EXPECT_TRUE(settings.values.empty());
    EXPECT_EQ(storeVline(settings), "13800");
    EXPECT_EQ(settings.get("Settings", "Vline"), "13800");
}

TEST(LineVoltage, StoredTextIsOfferedAsItStands) {
    testing::MemorySettings settings;
    settings.set("Settings", "Vline", "0");
    EXPECT_EQ(vlineOf(settings), "0");
    EXPECT_EQ(storeVline(settings), "0");
}

TEST(LineVoltage, OnlyAnotherAnswerIsKept) {
    class Counting : public testing::MemorySettings {
    public:
        int writes = 0;
        void set(const std::string& section, const std::string& key, const std::string& value) override {
            ++writes;
            MemorySettings::set(section, key, value);
        }
    } settings;
    keepVline(settings, "12470");
    EXPECT_EQ(vlineOf(settings), "12470");
    keepVline(settings, "12470");
    EXPECT_EQ(settings.writes, 1);
}

TEST(LineVoltage, VoltsAreTheLeadingNumber) {
    EXPECT_EQ(voltsOf("13800"), 13800);
    EXPECT_EQ(voltsOf("13800 volts"), 13800);
    EXPECT_EQ(voltsOf("13.8"), 13.8);
    EXPECT_EQ(voltsOf("-5"), -5);
    EXPECT_EQ(voltsOf("abc"), 0);
    EXPECT_EQ(voltsOf(""), 0);
    EXPECT_THROW(voltsOf("1e39"), Fault);
}

TEST(LineVoltage, HintForAnEntryThatIsHardlyVolts) {
    EXPECT_EQ(voltageHint("13800"), "");
    EXPECT_EQ(voltageHint("13.8"),
              "Line voltage taken as 13.8 volts; the entry must be volts, not KV (13800 for "
              "13.8 KV).");
    EXPECT_EQ(voltageHint("abc"), "Line voltage taken as 0 volts; the entry must be volts, not KV.");
    EXPECT_EQ(voltageHint("-5"), "Line voltage taken as -5 volts; the entry must be volts, not KV.");
}

TEST(LineVoltage, PowerFactorOfZeroIsOfferedAsOne) {
    Recordings recordings;
    recordings.powerFactor = 0;
    EXPECT_EQ(powerFactorOf(recordings), 1.0F);
    EXPECT_EQ(powerFactorPreset(recordings), "1");
    EXPECT_EQ(recordings.powerFactor, 1.0F);
}

TEST(LineVoltage, PowerFactorIsNotCheckedAgainstOne) {
    Recordings recordings;
    setPowerFactor(recordings, "1.2");
    EXPECT_EQ(recordings.powerFactor, 1.2F);
    EXPECT_EQ(powerFactorPreset(recordings), "1.2");
}

TEST(LineVoltage, EmptyPowerFactorKeepsTheOldOne) {
    Recordings recordings;
    setPowerFactor(recordings, "0.85");
    setPowerFactor(recordings, "");
    EXPECT_EQ(recordings.powerFactor, 0.85F);
}

TEST(LineVoltage, PowerFactorWithoutANumberIsZeroAndCountsAsOne) {
    Recordings recordings;
    setPowerFactor(recordings, "none");
    EXPECT_EQ(recordings.powerFactor, 0.0F);
    EXPECT_EQ(powerFactorOf(recordings), 1.0F);
}

TEST(LineVoltage, PowerFactorBeyondSinglePrecisionChangesNothing) {
    Recordings recordings;
    EXPECT_THROW(setPowerFactor(recordings, "1e40"), Fault);
    EXPECT_EQ(recordings.powerFactor, 1.0F);
}

TEST(LineVoltage, FixedTexts) {
    EXPECT_NE(voltagePrompt.find("Enter line voltage for power calculation"), std::string_view::npos);
    EXPECT_NE(voltagePrompt.find("input must be volts, not 'KV'"), std::string_view::npos);
    EXPECT_EQ(powerFactorPrompt, "Enter Power Factor to be used \rmust be 1 or less");
}

} // namespace
} // namespace tally
