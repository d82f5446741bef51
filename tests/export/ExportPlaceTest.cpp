// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ExportPlace.h"

#include "ExportFixture.h"

namespace tally {
namespace {

#ifdef _WIN32
const std::string separator = "\\";
#else
const std::string separator = "/";
#endif

TEST(JoinPath, PutsTheSeparatorOfTheMachineBetween) {
    EXPECT_EQ(joinPath("folder", "Lotusint.csv"), "folder" + separator + "Lotusint.csv");
}

TEST(JoinPath, DoesNotDoubleASeparator) {
    EXPECT_EQ(joinPath("/", "a"), "/a");
    EXPECT_EQ(joinPath("/data/", "a"), "/data/a");
}

TEST(JoinPath, WithoutAFolderItIsTheName) {
    EXPECT_EQ(joinPath("", "a"), "a");
}

class ExportPath : public testing::ExportTest {};

TEST_F(ExportPath, TheDefaultDirectoryComesFirst) {
    testing::addFile(recordings, "/data/x.dat", {1});
    EXPECT_EQ(exportPath(recordings, 0, "n", place), "/out" + separator + "n");
}

TEST_F(ExportPath, OtherwiseTheFolderOfTheDataFile) {
    place.directory.clear();
    testing::addFile(recordings, "/data/x.dat", {1});
    testing::addFile(recordings, "x.dat", {1});
    testing::addFile(recordings, "/x.dat", {1});
    EXPECT_EQ(exportPath(recordings, 0, "n", place), "/data" + separator + "n");
    EXPECT_EQ(exportPath(recordings, 1, "n", place), "n");
    EXPECT_EQ(exportPath(recordings, 2, "n", place), "/n");
}

} // namespace
} // namespace tally
