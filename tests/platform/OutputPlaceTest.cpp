// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OutputPlace.h"

#include "core/Fault.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

namespace tally {
namespace {

// The number of the fault that a place gives; 0 for none.
int faultAt(const std::string& path, std::uint64_t bytes = 205000) {
    try {
        checkOutputPlace(path, bytes);
    } catch (const Fault& fault) {
        return fault.number();
    }
    return 0;
}

struct OutputPlaceTest : ::testing::Test {
    QTemporaryDir folder;
    std::string path(const std::string& name) const { return folder.path().toStdString() + "/" + name; }
};

TEST_F(OutputPlaceTest, AFileInAFolderThatIsThereCanBeWritten) {
    EXPECT_EQ(faultAt(path("new.dat")), 0);
    QFile old(QString::fromStdString(path("old.dat")));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    EXPECT_EQ(faultAt(path("old.dat")), 0);
    EXPECT_FALSE(QFile::exists(QString::fromStdString(path("new.dat"))));
}

TEST_F(OutputPlaceTest, AFolderThatIsNotThereIsRefused) {
    EXPECT_EQ(faultAt(path("none/new.dat")), 76);
}

TEST_F(OutputPlaceTest, AFolderIsNoFile) {
    EXPECT_EQ(faultAt(folder.path().toStdString()), 75);
    EXPECT_EQ(faultAt(path("")), 75);
}

TEST_F(OutputPlaceTest, TooLittleRoomIsAFullDisk) {
    EXPECT_EQ(faultAt(path("new.dat"), std::numeric_limits<std::uint64_t>::max()), 61);
}

TEST_F(OutputPlaceTest, AFolderWithoutTheRightToWriteIsRefused) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere";
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(faultAt(path("new.dat")), 70);
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace
} // namespace tally
