// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Header.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

// Columns, counted from 1:        1..4 8..11                 31..44        45..52  54..56
const std::string currentHeader = "PQVC   4127                   03-15-24 14:05   Vbatt 3E8";
const std::string olderHeader = "PQXa   1234" + std::string(35, '.') + "03-15-99 10:07" + "....";

TEST(HeaderTest, EveryFieldIsCutAtItsColumns) {
    EXPECT_EQ(headerField(currentHeader, column::model), "PQV");
    EXPECT_EQ(headerField(currentHeader, column::type), "V");
    EXPECT_EQ(headerField(currentHeader, column::mode), "C");
    EXPECT_EQ(headerField(currentHeader, column::serial), "4127");
    EXPECT_EQ(headerField(currentHeader, column::time), "03-15-24 14:05");
    EXPECT_EQ(headerField(currentHeader, column::battery), "   Vbatt");
    EXPECT_EQ(headerField(currentHeader, column::batteryLabel), "Vbatt");
    EXPECT_EQ(headerField(currentHeader, column::batteryValue), "3E8");
    EXPECT_EQ(headerField(olderHeader, column::olderTime), "03-15-99 10:07");
}

TEST(HeaderTest, AFieldBeyondTheEndIsAsMuchAsThereIs) {
    EXPECT_EQ(headerField("PQXa   12", column::serial), "12");
    EXPECT_EQ(headerField("PQXa", column::serial), "");
    EXPECT_EQ(headerField("", column::model), "");
}

TEST(HeaderTest, AFamilyInitialIsPHOrKInEitherCase) {
    const std::string initials = "PHKphk";
    for (int code = 0; code < 256; ++code) {
        const char c = static_cast<char>(code);
        EXPECT_EQ(isFamilyInitial(c), initials.find(c) != std::string::npos) << code;
    }
}

TEST(HeaderTest, TheModeLetterIsLoweredAndABlankIsA) {
    EXPECT_EQ(modeLetterOf("KWTH"), 'h');
    EXPECT_EQ(modeLetterOf("KWTc"), 'c');
    EXPECT_EQ(modeLetterOf("HVN "), 'a');
    EXPECT_EQ(modeLetterOf("HVN"), 'a');
    EXPECT_TRUE(isRunning("KWTc"));
    EXPECT_FALSE(isRunning("KWTC"));
    EXPECT_FALSE(isRunning("KWT "));
    EXPECT_FALSE(isRunning("KWT"));
}

TEST(HeaderTest, TheTimeStandsFurtherRightInTheOlderLayout) {
    EXPECT_EQ(timeField(currentHeader).at, 30U);
    EXPECT_EQ(timeField(olderHeader).at, 46U);
    EXPECT_EQ(timeOf(currentHeader), toReadingTime({2024, 3, 15, 14, 5}));
    EXPECT_EQ(timeOf(olderHeader), toReadingTime({1999, 3, 15, 10, 7}));
}

TEST(HeaderTest, OnlyAHeaderOfMoreThan51CharactersCanBeOfTheOlderLayout) {
    EXPECT_FALSE(isOlderLayout(olderHeader.substr(0, 51)));
    EXPECT_TRUE(isOlderLayout(olderHeader.substr(0, 52)));
    EXPECT_FALSE(isOlderLayout(currentHeader));
}

TEST(HeaderTest, AFieldThatIsNoTimeOrNotThereGivesNothing) {
    std::string wrong = currentHeader;
    wrong.replace(30, 14, "13-15-24 14:05");
    EXPECT_EQ(timeOf(wrong), std::nullopt);
    wrong.replace(30, 14, "              ");
    EXPECT_EQ(timeOf(wrong), std::nullopt);
    EXPECT_EQ(timeOf(currentHeader.substr(0, 43)), std::nullopt);
    EXPECT_EQ(timeOf("KWTA"), std::nullopt);
    EXPECT_EQ(timeOf(""), std::nullopt);
}

TEST(HeaderTest, TheOlderLayoutsTimeIsCopiedToWhereItStandsToday) {
    std::string header = olderHeader;
    EXPECT_TRUE(repairOlderLayout(header));
    EXPECT_EQ(header,
              "PQXa   1234" + std::string(19, '.') + "03-15-99 10:07" + ".." + "03-15-99 10:07" + "....");
    header = currentHeader;
    EXPECT_TRUE(repairOlderLayout(header));
    EXPECT_EQ(header, currentHeader);
    header = olderHeader.substr(0, 59);
    EXPECT_FALSE(repairOlderLayout(header));
    EXPECT_EQ(header, olderHeader.substr(0, 59));
}

TEST(HeaderTest, ATimeFillsAShortHeaderUp) {
    std::string header = "PQXa   1234";
    putTime(header, column::time, toReadingTime({2025, 12, 1, 0, 30}));
    EXPECT_EQ(header, "PQXa   1234" + std::string(19, ' ') + "12-01-25 00:30");
}

// 0.003656 volts a step and 0.15 volts at 0: 3E8 is 1,000, FFF is 4,095.
TEST(HeaderTest, TheBatteryIsThreeHexadecimalDigitsBehindItsLabel) {
    EXPECT_DOUBLE_EQ(batteryVolts(currentHeader).value(), 3.806);
    EXPECT_DOUBLE_EQ(batteryVolts(currentHeader.substr(0, 53) + "FFF").value(), 15.12132);
    EXPECT_DOUBLE_EQ(batteryVolts(currentHeader.substr(0, 53) + "000").value(), 0.15);
    EXPECT_EQ(batteryVolts(currentHeader.substr(0, 53) + "3E"), std::nullopt);
    EXPECT_EQ(batteryVolts(currentHeader.substr(0, 53) + "3G8"), std::nullopt);
    EXPECT_EQ(batteryVolts(olderHeader), std::nullopt);
}

} // namespace
} // namespace tally
