// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ModeTable.h"

#include "core/Fault.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(ModeTable, EveryLetterHasItsMinutesAndWord) {
    struct Row {
        char letter;
        int minutes;
        const char* word;
    };
    for (const Row& row : {Row{'a', 15, "Cont"},
                           {'b', 5, "Cont"},
                           {'c', 1, "Cont"},
                           {'d', 15, "Stop"},
                           {'e', 5, "Stop"},
                           {'f', 1, "Stop"},
                           {'g', 15, "Cont"},
                           {'h', 5, "Cont"},
                           {'i', 1, "Cont"},
                           {'j', 15, "Stop"},
                           {'k', 5, "Stop"},
                           {'l', 1, "Stop"},
                           {'m', 0, ""}}) {
        EXPECT_EQ(modeRow(row.letter).minutes, row.minutes) << row.letter;
        EXPECT_EQ(modeRow(row.letter).whenFull, row.word) << row.letter;
        EXPECT_EQ(isMode(row.letter), row.letter != 'm');
    }
}

TEST(ModeTable, LettersAfterFAreMinMaxAvg) {
    EXPECT_FALSE(isMinMaxAvg('f'));
    EXPECT_TRUE(isMinMaxAvg('g'));
    EXPECT_EQ(valuesPerInterval('a'), 1);
    EXPECT_EQ(valuesPerInterval('l'), 3);
}

TEST(ModeTable, OtherLettersAreOutOfBounds) {
    for (const char letter : {'n', '`', 'A', ' ', '\xE4'}) {
        EXPECT_THROW(modeRow(letter), Fault);
        EXPECT_FALSE(isMode(letter));
    }
}

TEST(ModeTable, CaseIsThatOfAsciiLetters) {
    EXPECT_EQ(lowerCase('A'), 'a');
    EXPECT_EQ(lowerCase('['), '[');
    EXPECT_EQ(lowerCase('\xC4'), '\xC4');
    EXPECT_EQ(upperCase('l'), 'L');
    EXPECT_EQ(upperCase('1'), '1');
}

} // namespace
} // namespace tally
