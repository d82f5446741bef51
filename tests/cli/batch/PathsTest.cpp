// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Paths.h"

#include "support/Process.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace tally::cli {
namespace {

namespace fs = std::filesystem;

class ListPaths : public ::testing::Test {
protected:
    testing::TemporaryFolder folder;

    void SetUp() override {
        for (const char* name : {"sub", "sub/deep", "empty"})
            fs::create_directories(folder.path(name));
        for (const char* name :
             {"b.dat", "a.dat", "B.dat", "note.txt", "sub/c.dat", "sub/deep/d.dat", "sub/e.DAT"})
            folder.write(name, "x");
    }

    // Paths below the folder.
    std::vector<std::string> listed(const std::vector<std::string>& paths, const std::string& names = {}) {
        std::istringstream input(names);
        std::vector<std::string> found;
        for (const Listed& one : listPaths(paths, input))
            found.push_back(one.path.starts_with(folder.path("")) ? one.path.substr(folder.path("").size())
                                                                  : one.path);
        return found;
    }
};

using Found = std::vector<std::string>;

TEST_F(ListPaths, AFolderStandsForItsDataFilesByNameByteByByte) {
    EXPECT_EQ(listed({folder.path("")}), (Found{"B.dat", "a.dat", "b.dat", "sub/c.dat", "sub/deep/d.dat"}));
    EXPECT_TRUE(listed({folder.path("empty")}).empty());
}

TEST_F(ListPaths, FilesStandForThemselvesAsOftenAsTheyAreNamed) {
    const std::string note = folder.path("note.txt");
    EXPECT_EQ(listed({note, "/none.dat", note}), (Found{"note.txt", "/none.dat", "note.txt"}));
}

TEST_F(ListPaths, AHyphenReadsNamesFromTheInput) {
    EXPECT_EQ(listed({"-", folder.path("b.dat")}, folder.path("a.dat") + "\r\n\n" + folder.path("sub/deep")),
              (Found{"a.dat", "sub/deep/d.dat", "b.dat"}));
}

TEST_F(ListPaths, LinksToFoldersAreNotFollowedAndOnlyRegularFilesCount) {
    fs::create_directory_symlink(folder.path("sub"), folder.path("empty/link.dat"));
    fs::create_directory(folder.path("empty/folder.dat"));
    fs::create_symlink(folder.path("none"), folder.path("empty/dangling.dat"));
    EXPECT_TRUE(listed({folder.path("empty")}).empty());
}

} // namespace
} // namespace tally::cli
