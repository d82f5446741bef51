// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Phase.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(Phase, IsNamedByAWholeWordInAnyCaseOfLetters) {
    EXPECT_EQ(phaseIn("maple-red.dat"), Phase::red);
    EXPECT_EQ(phaseIn("WHITE_07.DAT"), Phase::white);
    EXPECT_EQ(phaseIn("Feeder 12, Blue phase"), Phase::blue);
    EXPECT_EQ(phaseIn("blue"), Phase::blue);
    EXPECT_EQ(phaseIn("3red4"), Phase::red);
}

TEST(Phase, APartOfAWordNamesNone) {
    EXPECT_EQ(phaseIn("redwood.dat"), Phase::none);
    EXPECT_EQ(phaseIn("Whitehall"), Phase::none);
    EXPECT_EQ(phaseIn("measured"), Phase::none);
    EXPECT_EQ(phaseIn("\xC3\xA9red"), Phase::none);
    EXPECT_EQ(phaseIn(""), Phase::none);
}

TEST(Phase, ATextThatNamesSeveralNamesNone) {
    EXPECT_EQ(phaseIn("red, white and blue"), Phase::none);
    EXPECT_EQ(phaseIn("red RED"), Phase::red);
}

} // namespace
} // namespace tally
