// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ModeLetter.h"

#include "core/Fault.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

const ReadingTime fiveAfterTwo = toReadingTime({2024, 3, 15, 14, 5});

TEST(ModeLetter, TwelveChoicesGiveTwelveLetters) {
    const std::vector<std::pair<ModeChoice, char>> rows = {
        {{15, false, false}, 'a'}, {{5, false, false}, 'b'}, {{1, false, false}, 'c'},
        {{15, false, true}, 'd'},  {{5, false, true}, 'e'},  {{1, false, true}, 'f'},
        {{15, true, false}, 'g'},  {{5, true, false}, 'h'},  {{1, true, false}, 'i'},
        {{15, true, true}, 'j'},   {{5, true, true}, 'k'},   {{1, true, true}, 'l'}};
    for (const auto& [choice, letter] : rows)
        EXPECT_EQ(modeLetter(choice), letter);
}

TEST(ModeLetter, AnIntervalThatThereIsNoneForIsAFault) {
    EXPECT_THROW(modeLetter({10, false, false}), Fault);
    EXPECT_THROW(modeLetter({0, true, true}), Fault);
}

TEST(ModeLetter, HasEighteenCharactersAndEndsWithCr) {
    EXPECT_EQ(initString('i', fiveAfterTwo), "03-15-24 14:05 c1\r");
    for (char letter = 'a'; letter <= 'l'; ++letter)
        EXPECT_EQ(initString(letter, fiveAfterTwo).size(), 18U) << letter;
}

TEST(ModeLetter, LettersAfterFAreReducedBySixWithTheDigitOne) {
    const std::string sent = "abcdefabcdef";
    for (char letter = 'a'; letter <= 'l'; ++letter) {
        const std::string text = initString(letter, fiveAfterTwo);
        EXPECT_EQ(text[15], sent[static_cast<std::size_t>(letter - 'a')]) << letter;
        EXPECT_EQ(text[16], letter > 'f' ? '1' : '0') << letter;
    }
}

TEST(ModeLetter, FifteenMinutesAverageContinuousSendsAWithZero) {
    EXPECT_EQ(initString(modeLetter({15, false, false}), fiveAfterTwo), "03-15-24 14:05 a0\r");
}

TEST(ModeLetter, FiveMinutesMinMaxAvgContinuousBuildsHAndSendsBWithOne) {
    EXPECT_EQ(modeLetter({5, true, false}), 'h');
    EXPECT_EQ(initString('h', fiveAfterTwo), "03-15-24 14:05 b1\r");
}

TEST(ModeLetter, OneMinuteMinMaxAvgStopSendsFWithOne) {
    EXPECT_EQ(initString(modeLetter({1, true, true}), fiveAfterTwo), "03-15-24 14:05 f1\r");
}

TEST(ModeLetter, ABlankLetterStaysBlankWithZero) {
    EXPECT_EQ(initString(' ', fiveAfterTwo), "03-15-24 14:05  0\r");
}

TEST(ModeLetter, TheClockOfTheComputerHasTwoDigitFields) {
    EXPECT_EQ(initString('a', toReadingTime({2000, 1, 2, 3, 4})), "01-02-00 03:04 a0\r");
    EXPECT_EQ(initString('a', toReadingTime({1999, 12, 31, 23, 59})), "12-31-99 23:59 a0\r");
}

} // namespace
} // namespace tally
