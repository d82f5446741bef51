// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ReceivedText.h"

#include "LinkBench.h"
#include "core/Header.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::header;

const std::string olderHeader = "PQXa   1234" + std::string(35, '.') + "03-15-99 10:07" + "....";

TEST(ReceivedTextTest, TheModelCodeIsPutIntoUpperCase) {
    std::string text = "??kwTa";
    EXPECT_TRUE(upperCaseModel(text));
    EXPECT_EQ(text, "??KWTa");
    text = "xp";
    EXPECT_TRUE(upperCaseModel(text));
    EXPECT_EQ(text, "xP");
}

TEST(ReceivedTextTest, ARecordingStartsWithinTheFirst32766Characters) {
    std::string text = std::string(32765, '.') + "K";
    EXPECT_TRUE(upperCaseModel(text));
    text = std::string(32766, '.') + "K";
    EXPECT_FALSE(upperCaseModel(text));
    text = "no, not one";
    EXPECT_FALSE(upperCaseModel(text));
    text = "";
    EXPECT_FALSE(upperCaseModel(text));
}

TEST(ReceivedTextTest, TheHeaderGoesFromItsInitialToTheEndOfItsLine) {
    EXPECT_EQ(headerOf("\"\r\n\nKWTa 1\rT: 2"), "KWTa 1");
    EXPECT_EQ(headerOf("KWTa\nx"), "KWTa");
    EXPECT_EQ(headerOf("KWTa\x1a"), "KWTa");
    EXPECT_EQ(headerOf("..PQ"), "PQ");
    EXPECT_EQ(headerOf("...\r"), "");
}

TEST(ReceivedTextTest, ATimeIsWrittenWhereItsHeaderHasIt) {
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

TEST(ReceivedTextTest, AShortHeaderIsFilledUpWithBlanks) {
    std::string text = "KWTA\rT: 1";
    setHeaderTime(text, toReadingTime({2025, 12, 1, 0, 30}));
    EXPECT_EQ(text, "KWTA" + std::string(26, ' ') + "12-01-25 00:30\rT: 1");
}

} // namespace
} // namespace tally
