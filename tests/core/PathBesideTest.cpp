// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/PathBeside.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

TEST(PathBeside, TheLastThreeCharactersAreReplaced) {
    EXPECT_EQ(pathBeside("/data/feeder.dat", "not"), "/data/feeder.not");
    EXPECT_EQ(pathBeside("FEEDER.DAT", "prn"), "FEEDER.prn");
    EXPECT_EQ(pathBeside("/d/abc", "not"), "/d/not");
    EXPECT_EQ(pathBeside("/d/x.dät", "not"), "/d/x.not") << "characters, not bytes";
}

TEST(PathBeside, WhatBelongsToAShortNameLiesInItsFolderToo) {
    EXPECT_EQ(pathBeside("/d/ab", "not"), "/d/ab.not");
    EXPECT_EQ(pathBeside("/d/a", "not"), "/d/a.not");
    EXPECT_EQ(pathBeside("/d/ä", "not"), "/d/ä.not");
    EXPECT_EQ(pathBeside("ab", "not"), "ab.not");
}

// "\xE4" alone is no UTF-8: two names that differ in such bytes have two notes files.
TEST(PathBeside, ANameThatIsNoUtf8IsCutByteByByte) {
    EXPECT_EQ(pathBeside("/d/k\xE4\x80\x81\x82\x83.dat", "not"), "/d/k\xE4\x80\x81\x82\x83.not");
    EXPECT_EQ(pathBeside("/d/k\xFF\x80\x81\x82", "not"), "/d/k\xFFnot");
    EXPECT_EQ(pathBeside("/ö/\x80\x81", "not"), "/ö/\x80\x81.not");
}

} // namespace
} // namespace tally
