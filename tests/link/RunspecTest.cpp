// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Runspec.h"

#include "support/MemoryFiles.h"
#include "support/QueuedPrompt.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

const std::string bullet = "   \u2022  ";
const std::string nothingFound = "No valid run specs found in 'runspec.txt'.\r\n"
                                 "  - To avoid getting this message either fix file 'runspec.txt'\r\n"
                                 "    or delete it.";

TEST(RunspecTest, WithoutTheFileTheDefaultsStandAndNothingIsShown) {
    testing::MemoryFiles files;
    testing::QueuedPrompt prompt;
    const RunFlags flags = HandleRunspec(files, prompt, "/home/field");
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_TRUE(flags.enableChange999sTo000);
    EXPECT_FALSE(flags.enable999CountReport);
    EXPECT_TRUE(flags.enableErrorReport);
    EXPECT_FALSE(flags.anyFault());
}

TEST(RunspecTest, TheFileStandsInTheWorkingDirectory) {
    testing::MemoryFiles files;
    testing::QueuedPrompt prompt;
    files.contents["/home/field/runspec.txt"] = "enable999CountReport=True\r\n";
    files.contents["/elsewhere/runspec.txt"] = "enableErrorReport=False\r\n";
    const RunFlags flags = HandleRunspec(files, prompt, "/home/field");
    EXPECT_TRUE(flags.enable999CountReport);
    EXPECT_TRUE(flags.enableErrorReport);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"Flag settings per 'runspec.txt' file:\r\n" + bullet +
                                                       "enable999CountReport=True\r\n"});
}

TEST(RunspecTest, EachOfTheTenLinesSetsItsFlag) {
    const std::vector<std::pair<std::string, bool RunFlags::*>> cases = {
        {"enableChange999sTo000=False", &RunFlags::enableChange999sTo000},
        {"enable999CountReport=True", &RunFlags::enable999CountReport},
        {"enableErrorReport=False", &RunFlags::enableErrorReport},
        {"enableAddedReading=True", &RunFlags::enableAddedReading},
        {"enableMissingReading=True", &RunFlags::enableMissingReading},
        {"enableChangeTo999=True", &RunFlags::enableChangeTo999},
        {"enableAddedBadChar=True", &RunFlags::enableAddedBadChar},
        {"enableReadingOver999=True", &RunFlags::enableReadingOver999},
        {"enableAddedCtrlZ=True", &RunFlags::enableAddedCtrlZ},
        {"enableMissingCtrlZ=True", &RunFlags::enableMissingCtrlZ}};
    for (const auto& [text, flag] : cases) {
        RunFlags expected;
        expected.*flag = !(expected.*flag);
        const Runspec found = readRunspec(text);
        EXPECT_EQ(found.flags, expected) << text;
        EXPECT_EQ(found.report, "Flag settings per 'runspec.txt' file:\r\n" + bullet + text + "\r\n");
    }
}

TEST(RunspecTest, TheDefaultValueCannotBeWritten) {
    for (const std::string line :
         {"enableErrorReport=True", "enableChange999sTo000=True", "enableAddedReading=False"}) {
        const Runspec found = readRunspec(line + "\r\n");
        EXPECT_EQ(found.flags, RunFlags()) << line;
        EXPECT_EQ(found.report, nothingFound) << line;
    }
}

TEST(RunspecTest, OnlyAWholeLineInItsExactCaseCounts) {
    const Runspec found = readRunspec("enableAddedReading = True\n enableAddedReading=True\n"
                                      "EnableAddedReading=True\nenableAddedReading=True \n"
                                      "enableAddedReading=Truex\nenableAddedReading=true\n");
    EXPECT_EQ(found.flags, RunFlags());
    EXPECT_EQ(found.report, nothingFound);
}

TEST(RunspecTest, TheReportKeepsTheOrderOfTheFileAndLeavesOtherLinesOut) {
    const Runspec found = readRunspec("note\r\nenableMissingCtrlZ=True\r\n\r\nenableErrorReport=True\r\n"
                                      "enableErrorReport=False");
    EXPECT_EQ(found.report, "Flag settings per 'runspec.txt' file:\r\n" + bullet +
                                "enableMissingCtrlZ=True\r\n" + bullet + "enableErrorReport=False\r\n");
}

TEST(RunspecTest, AnEmptyFileGivesTheMessageAndTheDefaults) {
    testing::MemoryFiles files;
    testing::QueuedPrompt prompt;
    files.contents["d/runspec.txt"] = "";
    EXPECT_EQ(HandleRunspec(files, prompt, "d"), RunFlags());
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{nothingFound});
}

TEST(RunspecTest, AFileThatCannotBeReadStopsWithItsFault) {
    testing::MemoryFiles files;
    testing::QueuedPrompt prompt;
    files.contents["d/runspec.txt"] = "enableErrorReport=False\r\n";
    files.failRead = fault::permissionDenied();
    try {
        HandleRunspec(files, prompt, "d");
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.number(), 70);
    }
    EXPECT_TRUE(prompt.shown.empty());
}

} // namespace
} // namespace tally
