// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ReceivedText.h"

#include "LinkBench.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::header;

const std::string olderHeader = "PQXa   1234" + std::string(35, '.') + "03-15-99 10:07" + "....";

TEST(ReceivedTextTest, theModelCodeIsPutIntoUpperCase) {
    std::string text = "??kwTa";
    EXPECT_TRUE(upperCaseModel(text));
    EXPECT_EQ(text, "??KWTa");
    text = "xp";
    EXPECT_TRUE(upperCaseModel(text));
    EXPECT_EQ(text, "xP");
}

TEST(ReceivedTextTest, aRecordingStartsWithinTheFirst32766Characters) {
    std::string text = std::string(32765, '.') + "K";
    EXPECT_TRUE(upperCaseModel(text));
    text = std::string(32766, '.') + "K";
    EXPECT_FALSE(upperCaseModel(text));
    text = "no, not one";
    EXPECT_FALSE(upperCaseModel(text));
    text = "";
    EXPECT_FALSE(upperCaseModel(text));
}

TEST(ReceivedTextTest, theHeaderGoesFromItsInitialToTheEndOfItsLine) {
    EXPECT_EQ(headerOf("\"\r\n\nKWTa 1\rT: 2"), "KWTa 1");
    EXPECT_EQ(headerOf("KWTa\nx"), "KWTa");
    EXPECT_EQ(headerOf("KWTa\x1a"), "KWTa");
    EXPECT_EQ(headerOf("..PQ"), "PQ");
    EXPECT_EQ(headerOf("...\r"), "");
}

TEST(ReceivedTextTest, theModeLetterIsLoweredAndABlankIsA) {
    EXPECT_EQ(modeLetterOf("KWTH"), 'h');
    EXPECT_EQ(modeLetterOf("KWTc"), 'c');
    EXPECT_EQ(modeLetterOf("HVN "), 'a');
    EXPECT_EQ(modeLetterOf("HVN"), 'a');
    EXPECT_TRUE(isRunning("KWTc"));
    EXPECT_FALSE(isRunning("KWTC"));
    EXPECT_FALSE(isRunning("KWT "));
    EXPECT_FALSE(isRunning("KWT"));
}

TEST(ReceivedTextTest, theTimeStandsFurtherRightInTheOlderLayout) {
    EXPECT_EQ(timeColumn(header()), 30U);
    EXPECT_EQ(timeColumn(header().substr(0, 51)), 30U);
    EXPECT_EQ(timeColumn(olderHeader), 46U);
    EXPECT_EQ(timeOf(header()), toReadingTime({2024, 3, 15, 14, 5}));
    EXPECT_EQ(timeOf(olderHeader), toReadingTime({1999, 3, 15, 10, 7}));
}

TEST(ReceivedTextTest, aFieldThatIsNoTimeOrNotThereGivesNothing) {
    EXPECT_EQ(timeOf(header("KWT", 'A', "13-15-24 14:05")), std::nullopt);
    EXPECT_EQ(timeOf(header("KWT", 'A', "              ")), std::nullopt);
    EXPECT_EQ(timeOf(header().substr(0, 43)), std::nullopt);
    EXPECT_EQ(timeOf("KWTA"), std::nullopt);
    EXPECT_EQ(timeOf(""), std::nullopt);
}

TEST(ReceivedTextTest, aTimeIsWrittenWhereItsHeaderHasIt) {
    const ReadingTime time = toReadingTime({2025, 12, 1, 0, 30});
    std::string text = ".." + header("KWT", 'A', "??????????????") + "\rT: 1";
    setHeaderTime(text, time);
    EXPECT_EQ(text, ".." + header("KWT", 'A', "12-01-25 00:30") + "\rT: 1");
    text = olderHeader + "\rT:";
    setHeaderTime(text, time);
    EXPECT_EQ(timeOf(headerOf(text)), time);
    EXPECT_EQ(text.substr(0, 46), olderHeader.substr(0, 46));
    EXPECT_EQ(text.size(), olderHeader.size() + 3);
}

TEST(ReceivedTextTest, aShortHeaderIsFilledUpWithBlanks) {
    std::string text = "KWTA\rT: 1";
    setHeaderTime(text, toReadingTime({2025, 12, 1, 0, 30}));
    EXPECT_EQ(text, "KWTA" + std::string(26, ' ') + "12-01-25 00:30\rT: 1");
}

} // namespace
} // namespace tally
