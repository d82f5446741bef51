// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Identity.h"

#include <gtest/gtest.h>

namespace tally::archive {
namespace {

const std::string sha = std::string("\xF0\x12\x34\x56\x78\x9A\xBC\xDF", 8) + std::string(24, '\x11');

TEST(Identity, TakesTheFirst63BitsOfTheHash) {
    EXPECT_EQ(idOf(sha), 0x78091A2B3C4D5E6F);
    EXPECT_EQ(idOf(std::string(32, '\xFF')), 0x7FFFFFFFFFFFFFFF);
    EXPECT_EQ(idOf(std::string(32, '\0')), 0);
}

TEST(Identity, IsShownAsTheFirstSixteenDigits) {
    EXPECT_EQ(nameOf(sha), "f0123456789abcdf");
}

TEST(Identity, FindsByAnyBeginning) {
    for (const char* digits : {"f", "F0123", "f0123456789abcdf", "f0123456789abcdf1111"}) {
        const IdBeginning beginning(digits);
        ASSERT_TRUE(beginning.valid()) << digits;
        EXPECT_LE(beginning.lowest(), idOf(sha)) << digits;
        EXPECT_GE(beginning.highest(), idOf(sha)) << digits;
        EXPECT_TRUE(beginning.fits(sha)) << digits;
    }
    // Shares the key, which lacks the last bit, but not the name.
    const IdBeginning neighbour("f0123456789abcde");
    EXPECT_EQ(neighbour.lowest(), idOf(sha));
    EXPECT_FALSE(neighbour.fits(sha));
}

TEST(Identity, TakesNothingButHexadecimalDigits) {
    for (const std::string& digits :
         {std::string(), std::string("xyz"), std::string("12 "), std::string("%"), std::string(65, 'a')})
        EXPECT_FALSE(IdBeginning(digits).valid()) << digits;
}

} // namespace
} // namespace tally::archive
