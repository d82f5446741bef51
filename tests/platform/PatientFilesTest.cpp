// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PatientFiles.h"

#include "core/Fault.h"
#include "platform/SafeFile.h"

#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace tally {
namespace {

// A disk that needs a while.
struct SlowFiles : SafeFile {
    void write(const std::string& path, const std::string& bytes) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        SafeFile::write(path, bytes);
    }
};

struct PatientFilesTest : ::testing::Test {
    QTemporaryDir dir;
    SlowFiles slow;
    PatientFiles files{slow};
    std::string path = (dir.path() + QStringLiteral("/a.dat")).toStdString();
};

TEST_F(PatientFilesTest, TheEventLoopRunsOnWhileADiskIsSlow) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(5);
    files.write(path, "text");
    EXPECT_GT(ticks, 5);
    EXPECT_EQ(files.read(path, 10), "text");
    EXPECT_TRUE(files.exists(path));
    EXPECT_TRUE(files.same(path, path));
}

TEST_F(PatientFilesTest, AFaultReachesTheOneWhoWrites) {
    EXPECT_THROW(files.write(path + "/no/such", "text"), Fault);
    EXPECT_THROW(files.read(path, 10), Fault);
}

} // namespace
} // namespace tally
