// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/InsertErrors.h"

#include "LinkBench.h"
#include "link/Validation.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

const std::string seven = "T:" + testing::lines(8) + "\x1a";

// The lines of a data section, without their LF.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> all;
    std::size_t at = text.find("T:") + 2;
    for (std::size_t end; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
        all.push_back(text.substr(at, end - at));
    return all;
}

std::string planted(bool RunFlags::*flag) {
    RunFlags flags;
    flags.*flag = true;
    testing::QueuedPrompt prompt;
    std::string text = seven;
    InsertErrors(text, flags, prompt);
    EXPECT_TRUE(prompt.shown.empty());
    return text;
}

struct Case {
    bool RunFlags::*flag;
    std::size_t line; // from 1
    std::string changed;
};

TEST(InsertErrorsTest, FaultKLandsOnLineKAndNowhereElse) {
    const std::string rest = " 121 122 123 124 125 126 127 128 129";
    const std::vector<Case> cases = {
        {&RunFlags::enableAddedReading, 1, "  123 120" + rest},
        {&RunFlags::enableMissingReading, 2, "\r " + rest},
        {&RunFlags::enableChangeTo999, 3, "\r  999 " + rest},
        {&RunFlags::enableAddedBadChar, 4, "\r A120" + rest},
        {&RunFlags::enableReadingOver999, 5, "\r  1234 " + rest},
        {&RunFlags::enableAddedCtrlZ, 6, std::string("\r \x1a") + "120" + rest},
    };
    const auto before = linesOf(seven);
    for (const Case& c : cases) {
        const auto after = linesOf(planted(c.flag));
        ASSERT_EQ(after.size(), before.size());
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_EQ(after[i], i + 1 == c.line ? c.changed : before[i]) << c.line << " " << i;
    }
}

TEST(InsertErrorsTest, Fault7RemovesTheTerminator) {
    EXPECT_EQ(planted(&RunFlags::enableMissingCtrlZ), seven.substr(0, seven.size() - 1));
}

TEST(InsertErrorsTest, WithAllSevenNoTerminatorIsLeftAndTheFirstBadCharacterIsA) {
    testing::QueuedPrompt prompt;
    std::string text = seven;
    InsertErrors(text,
                 {.enableAddedReading = true,
                  .enableMissingReading = true,
                  .enableChangeTo999 = true,
                  .enableAddedBadChar = true,
                  .enableReadingOver999 = true,
                  .enableAddedCtrlZ = true,
                  .enableMissingCtrlZ = true},
                 prompt);
    // Lines 1 and 2 hold 11 and 9 readings; 999 and 1234 stand in lines 3 and 5; A in line 4.
    EXPECT_EQ(
        validate(text, false),
        (ValidationCounts{
            .badLines = 2, .over999 = 1, .count999 = 1, .ctrlZ = 0, .badChars = 1, .firstBadChar = 65}));
}

TEST(InsertErrorsTest, ATextWithoutADataSectionIsToldAndLeftAlone) {
    testing::QueuedPrompt prompt;
    std::string text = "KWTA no data section 1 2 3\x1a";
    const std::string before = text;
    InsertErrors(text, {.enableAddedReading = true, .enableMissingCtrlZ = true}, prompt);
    EXPECT_EQ(text, before);
    EXPECT_EQ(prompt.texts(), std::vector<std::string>{"InsertErrors(): Couldn't find 'T:' in gText$"});
}

TEST(InsertErrorsTest, WithoutAFlagNothingHappens) {
    testing::QueuedPrompt prompt;
    std::string text = "no data section";
    InsertErrors(text, {}, prompt);
    EXPECT_EQ(text, "no data section");
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(InsertErrorsTest, ALineThatIsNotThereTakesNoFault) {
    testing::QueuedPrompt prompt;
    std::string text = "T: 1 2\n 3 4\x1a";
    InsertErrors(text, {.enableChangeTo999 = true, .enableAddedCtrlZ = true}, prompt);
    EXPECT_EQ(text, "T: 1 2\n 3 4\x1a");
}

TEST(InsertErrorsTest, ALineWithoutReadingsTakesTheTextAtItsBegin) {
    testing::QueuedPrompt prompt;
    std::string text = "T: 1\n\r\n 3\n";
    InsertErrors(text, {.enableMissingReading = true}, prompt);
    EXPECT_EQ(text, "T: 1\n\r\n 3\n");
    text = "T:\n";
    InsertErrors(text, {.enableAddedReading = true}, prompt);
    EXPECT_EQ(text, "T: 123 \n");
}

} // namespace
} // namespace tally
