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

TEST(LineVoltage, StoredTextIsTakenAsItStands) {
    testing::MemorySettings settings;
    settings.set("Settings", "Vline", "12470 V");
    EXPECT_EQ(vlineOf(settings), "12470 V");
    EXPECT_EQ(storeVline(settings), "12470 V");
    EXPECT_TRUE(hasVline(settings));
}

TEST(LineVoltage, StoredZeroCountsAsNone) {
    for (const char* stored : {"", "0", "0.0", "none"}) {
        testing::MemorySettings settings;
        settings.set("Settings", "Vline", stored);
        EXPECT_FALSE(hasVline(settings));
        EXPECT_EQ(vlineOf(settings), "13800") << stored;
        EXPECT_EQ(settings.get("Settings", "Vline"), stored) << "looking changes nothing";
        EXPECT_EQ(storeVline(settings), "13800");
        EXPECT_EQ(settings.get("Settings", "Vline"), "13800");
    }
}

// A comma that groups thousands hides no digit behind it.
TEST(LineVoltage, StoredTextIsNoneOnlyWhenItsVoltsAre) {
    testing::MemorySettings settings;
    settings.set("Settings", "Vline", "0,138");
    EXPECT_TRUE(hasVline(settings));
    EXPECT_EQ(voltsOf(vlineOf(settings)), 138);
    settings.set("Settings", "Vline", "0,000");
    EXPECT_FALSE(hasVline(settings));
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

TEST(LineVoltage, ACommaBeforeThreeDigitsGroupsThousands) {
    EXPECT_EQ(voltsOf("13,800"), 13800);
    EXPECT_EQ(voltsOf("1,013,800.5"), 1013800.5);
    EXPECT_EQ(voltsOf("13,8"), 13) << "the leading number";
    EXPECT_EQ(voltsOf("13,8000"), 13);
    EXPECT_EQ(voltsOf("13.5,800"), 13.5);
    EXPECT_EQ(voltsOf(",800"), 0);
}

TEST(LineVoltage, PlainVoltsAreWhollyANumber) {
    EXPECT_EQ(plainVolts("13800"), 13800);
    EXPECT_EQ(plainVolts("13,800"), 13800);
    EXPECT_EQ(plainVolts("-5"), -5);
    EXPECT_EQ(plainVolts("0"), 0);
    for (const char* entry : {"", "x", "13800 V", "13,8", "1e4", "0,8", "1 3800", "nan", ",800", "1,,000"})
        EXPECT_FALSE(plainVolts(entry)) << entry;
}

TEST(LineVoltage, HintForAnEntryThatIsHardlyVolts) {
    EXPECT_EQ(voltageHint("13800"), "");
    EXPECT_EQ(voltageHint("13,800"), "");
    EXPECT_EQ(voltageHint("13.8"),
              "Line voltage taken as 13.8 volts; the entry must be volts, not KV (13800 for "
              "13.8 KV).");
    EXPECT_EQ(voltageHint("-5"), "Line voltage taken as -5 volts; the entry must be volts, not KV.");
    EXPECT_EQ(voltageHint("13800 V"), "Line voltage taken as 13800 volts; the entry is not wholly a number.");
    EXPECT_EQ(voltageHint("abc"), "Line voltage taken as 13800 volts; 0 counts as none.");
    EXPECT_EQ(voltageHint("0"), "Line voltage taken as 13800 volts; 0 counts as none.");
}

TEST(LineVoltage, PowerFactorIsNotCheckedAgainstOne) {
    EXPECT_EQ(powerFactorOf("1.2"), 1.2F);
    EXPECT_EQ(powerFactorOf("0.85 lagging"), 0.85F);
}

TEST(LineVoltage, PowerFactorOfZeroOrNoNumberIsOne) {
    EXPECT_EQ(powerFactorOf("0"), 1.0F);
    EXPECT_EQ(powerFactorOf("none"), 1.0F);
}

TEST(LineVoltage, PowerFactorBeyondSinglePrecisionOverflows) {
    EXPECT_THROW(powerFactorOf("1e40"), Fault);
}

TEST(LineVoltage, PowerFactorThatIsNotWhollyANumberIsTold) {
    EXPECT_EQ(powerFactorHint("0.85"), "");
    EXPECT_EQ(powerFactorHint("1.2"), "");
    EXPECT_EQ(powerFactorHint("0,8"), "Power factor taken as 1.");
    EXPECT_EQ(powerFactorHint("0.8 lagging"), "Power factor taken as 0.8.");
    EXPECT_EQ(powerFactorHint("0"), "Power factor taken as 1.");
}

TEST(LineVoltage, BasisIsInKilovoltsAndSinglePrecision) {
    const PowerBasis basis{"12470", 0.9F};
    EXPECT_EQ(basis.volts(), 12470);
    EXPECT_EQ(basis.scale().kilovolts, 12.47F);
    EXPECT_EQ(basis.scale().factor, 0.9F);
}

TEST(LineVoltage, FixedTexts) {
    EXPECT_NE(voltagePrompt.find("Enter line voltage for power calculation"), std::string_view::npos);
    EXPECT_NE(voltagePrompt.find("input must be volts, not 'KV'"), std::string_view::npos);
    EXPECT_EQ(powerFactorPrompt, "Enter Power Factor to be used \rmust be 1 or less");
}

} // namespace
} // namespace tally
