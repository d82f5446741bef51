// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RecentFiles.h"

#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using Paths = std::array<std::string, 4>;

TEST(RecentFiles, AreEmptyAtFirst) {
    const testing::MemorySettings settings;
    EXPECT_EQ(recentFiles(settings), Paths{});
}

TEST(RecentFiles, TheNewestIsFirstAndTheFifthGoes) {
    testing::MemorySettings settings;
    for (const char* path : {"/a", "/b", "/c", "/d", "/e"})
        addRecentFile(settings, path);
    EXPECT_EQ(recentFiles(settings), (Paths{"/e", "/d", "/c", "/b"}));
    EXPECT_EQ(settings.get("Settings", "mrufile1"), "/e");
    EXPECT_EQ(settings.get("Settings", "mrufile4"), "/b");
}

TEST(RecentFiles, APathMayStandInTheListTwice) {
    testing::MemorySettings settings;
    addRecentFile(settings, "/a");
    addRecentFile(settings, "/a");
    EXPECT_EQ(recentFiles(settings), (Paths{"/a", "/a", "", ""}));
}

} // namespace
} // namespace tally
