// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ValidationReport.h"

#include "LinkBench.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

const std::string bullet = "   \u2022  ";
const std::string head = "Downloaded data has the following error(s):\r\n";
const std::string question = "\r\nDo you want to save this file anyway?\r\n"
                             " (If you click 'No' you can try another Download.)";

TEST(ValidationReportTest, NothingIsReportedOfACleanText) {
    EXPECT_EQ(errorReport({.count999 = 4, .ctrlZ = 1}), "");
    EXPECT_EQ(report999({.ctrlZ = 1}, true), "");
}

TEST(ValidationReportTest, EachFindingHasItsLine) {
    EXPECT_EQ(errorReport({.badLines = 3, .ctrlZ = 1}),
              head + bullet + "3 line(s) with an incorrect number of readings\r\n" + question);
    EXPECT_EQ(errorReport({.over999 = 2, .ctrlZ = 1}),
              head + bullet + "2 reading(s) over 999\r\n" + question);
    EXPECT_EQ(errorReport({.ctrlZ = 0}),
              head + bullet + "0 terminating ctrl/z characters found (should be exactly 1)\r\n" + question);
    EXPECT_EQ(errorReport({.ctrlZ = 1, .badChars = 7, .firstBadChar = 65}),
              head + bullet + "7 bad character(s)\r\n       (ASCII value of first bad character = 65)\r\n" +
                  question);
}

TEST(ValidationReportTest, FindingsStandInOrder) {
    EXPECT_EQ(
        errorReport(
            {.badLines = 1, .over999 = 2, .count999 = 9, .ctrlZ = 2, .badChars = 1, .firstBadChar = 26}),
        head + bullet + "1 line(s) with an incorrect number of readings\r\n" + bullet +
            "2 reading(s) over 999\r\n" + bullet +
            "2 terminating ctrl/z characters found (should be exactly 1)\r\n" + bullet +
            "1 bad character(s)\r\n       (ASCII value of first bad character = 26)\r\n" + question);
}

TEST(ValidationReportTest, ReadingsOf999AreReportedAsConvertedOrLeft) {
    EXPECT_EQ(report999({.count999 = 12}, true),
              "Download had 12 '999' reading(s)\r\n(which was/were converted to '000')");
    EXPECT_EQ(report999({.count999 = 1}, false),
              "Download had 1 '999' reading(s)\r\n(which was/were left as is)");
}

TEST(ValidationReportTest, ACleanTextIsKeptWithoutAQuestion) {
    testing::QueuedPrompt prompt;
    std::string text = "T: 999 \x1a";
    EXPECT_TRUE(judgeDownload(text, {}, prompt));
    EXPECT_EQ(text, "T: 000 \x1a");
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(ValidationReportTest, TheCountOf999ComesFirstThenTheErrorsWithTheirQuestion) {
    testing::QueuedPrompt prompt;
    prompt.answers = {Answer::No};
    std::string text = "T: 999 1000 \x1a";
    EXPECT_FALSE(judgeDownload(text, {.enable999CountReport = true}, prompt));
    ASSERT_EQ(prompt.shown.size(), 2U);
    EXPECT_EQ(prompt.shown[0].text, report999({.count999 = 1}, true));
    EXPECT_EQ(prompt.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(prompt.shown[1].text, errorReport({.over999 = 1, .ctrlZ = 1}));
    EXPECT_EQ(prompt.shown[1].buttons, Buttons::YesNo);
}

TEST(ValidationReportTest, YesKeepsTheText) {
    testing::QueuedPrompt prompt;
    prompt.answers = {Answer::Yes};
    std::string text = "T: 1000 \x1a";
    EXPECT_TRUE(judgeDownload(text, {}, prompt));
}

TEST(ValidationReportTest, WithoutErrorReportsTheTextIsKeptWithoutAsking) {
    testing::QueuedPrompt prompt;
    std::string text = "T: 1000 xyz";
    EXPECT_TRUE(judgeDownload(text, {.enableErrorReport = false}, prompt));
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(ValidationReportTest, PlantedFaultsAreFound) {
    testing::QueuedPrompt prompt;
    prompt.answers = {Answer::Yes};
    std::string text = testing::memory(8);
    EXPECT_TRUE(judgeDownload(text,
                              {.enableAddedReading = true,
                               .enableMissingReading = true,
                               .enableChangeTo999 = true,
                               .enableAddedBadChar = true,
                               .enableReadingOver999 = true,
                               .enableAddedCtrlZ = true,
                               .enableMissingCtrlZ = true},
                              prompt));
    EXPECT_EQ(
        prompt.texts(),
        std::vector<std::string>{errorReport(
            {.badLines = 2, .over999 = 1, .count999 = 1, .ctrlZ = 0, .badChars = 1, .firstBadChar = 65})});
}

} // namespace
} // namespace tally
