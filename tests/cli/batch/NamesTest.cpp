// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Names.h"

#include <gtest/gtest.h>

namespace tally::cli {
namespace {

using Names = std::vector<std::string>;

TEST(ResultNames, TakeThePathBelowTheCommonFolder) {
    EXPECT_EQ(resultNames({"/d/a.dat", "/d/north/b.dat", "/d/north/x/c.dat"}, "/out", "png"),
              (Names{"/out/a.png", "/out/north-b.png", "/out/north-x-c.png"}));
    EXPECT_EQ(resultNames({"/d/north/a.dat", "/d/north/b.dat"}, "/out", "csv"),
              (Names{"/out/a.csv", "/out/b.csv"}));
    EXPECT_EQ(resultNames({"/d/a.dat"}, "/out", "csv"), (Names{"/out/a.csv"}));
}

TEST(ResultNames, FoldersAreComparedWhole) {
    EXPECT_EQ(resultNames({"/d/north/a.dat", "/d/northern/a.dat"}, "/out", "png"),
              (Names{"/out/north-a.png", "/out/northern-a.png"}));
}

TEST(ResultNames, EqualOnesAreNumbered) {
    EXPECT_EQ(resultNames({"/d/x/a.dat", "/d/x-a.dat", "/d/x-a.txt", "/d/x/a.dat"}, "/out", "png"),
              (Names{"/out/x-a.png", "/out/x-a (2).png", "/out/x-a (3).png", "/out/x-a (4).png"}));
}

TEST(ResultNames, WithoutAnEndingKeepTheirOwn) {
    EXPECT_EQ(resultNames({"/d/a.dat", "/d/b.txt", "/d/c"}, "out", ""),
              (Names{"out/a.dat", "out/b.txt", "out/c"}));
}

TEST(ResultNames, RelativePathsAreSeenFromTheWorkingFolder) {
    EXPECT_EQ(resultNames({"x/../a.dat", "./y/b.dat"}, "/out", "png"), (Names{"/out/a.png", "/out/y-b.png"}));
}

TEST(ResultNames, OfNothingThereAreNone) {
    EXPECT_TRUE(resultNames({}, "/out", "png").empty());
}

} // namespace
} // namespace tally::cli
