// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/Words.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(Words, Utf8BecomesTheCharactersOfTheWindow) {
    EXPECT_EQ(words("Pr\xc3\xbc"
                    "fung"),
              QStringLiteral("Prüfung"));
    EXPECT_EQ(words({}), QString());
    EXPECT_EQ(words("one\r\ntwo"), QStringLiteral("one\r\ntwo"));
}

TEST(Words, LinesBreakAtCrLfLoneCrAndLfAndKeepTheirBlanks) {
    EXPECT_EQ(lines("  one  \r\n two \rthree\n"), QStringLiteral("  one  \n two \nthree\n"));
    EXPECT_EQ(lines("a\r\r"), QStringLiteral("a\n\n"));
}

} // namespace
} // namespace tally
