// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SafeFile.h"

#include "core/Fault.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/mount.h>
#endif

namespace tally {
namespace {

int faultNumber(const std::function<void()>& action) {
    try {
        action();
    } catch (const Fault& fault) {
        return fault.number();
    }
    return 0;
}

class SafeFileTest : public ::testing::Test {
protected:
    std::string in(const char* name) const {
        return folder.filePath(QString::fromLatin1(name)).toStdString();
    }
    // How many entries the folder holds, so that no half-written file is left behind.
    qsizetype entries() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(); }

    QTemporaryDir folder;
    SafeFile files;
};

TEST_F(SafeFileTest, WhatWasWrittenIsReadBackByteForByte) {
    std::string all;
    for (int value = 0; value < 256; ++value)
        all += static_cast<char>(value);
    files.write(in("a.dat"), all);
    EXPECT_EQ(files.read(in("a.dat"), 1000), all);
    EXPECT_TRUE(files.exists(in("a.dat")));
    EXPECT_EQ(entries(), 1);
}

TEST_F(SafeFileTest, NoMoreIsReadThanAskedFor) {
    files.write(in("a.dat"), "0123456789");
    EXPECT_EQ(files.read(in("a.dat"), 4), "0123");
    EXPECT_EQ(files.read(in("a.dat"), 10), "0123456789");
}

TEST_F(SafeFileTest, MissingFileIsFault53) {
    EXPECT_FALSE(files.exists(in("none.dat")));
    EXPECT_EQ(faultNumber([&] { files.read(in("none.dat"), 10); }), 53);
    EXPECT_EQ(faultNumber([&] { files.read("", 10); }), 53);
}

TEST_F(SafeFileTest, FolderIsFault75) {
    EXPECT_EQ(faultNumber([&] { files.read(folder.path().toStdString(), 10); }), 75);
    EXPECT_EQ(faultNumber([&] { files.write(folder.path().toStdString(), "x"); }), 75);
}

TEST_F(SafeFileTest, MissingFolderIsFault76) {
    EXPECT_EQ(faultNumber([&] { files.write(in("no/such/a.dat"), "x"); }), 76);
}

TEST_F(SafeFileTest, WritingReplacesAsAWhole) {
    files.write(in("a.dat"), "the old and longer text");
    files.write(in("a.dat"), "new");
    EXPECT_EQ(files.read(in("a.dat"), 100), "new");
    EXPECT_EQ(entries(), 1);
}

TEST_F(SafeFileTest, AFileIsTheSameHoweverItsPathIsSpelled) {
    files.write(in("a.dat"), "a");
    files.write(in("b.dat"), "a");
    const std::string around = in("../") + QDir(folder.path()).dirName().toStdString() + "/./a.dat";
    EXPECT_TRUE(files.same(in("a.dat"), in("a.dat")));
    EXPECT_TRUE(files.same(in("a.dat"), around));
    EXPECT_FALSE(files.same(in("a.dat"), in("b.dat")));
    EXPECT_TRUE(files.same(in("none.dat"), in("none.dat")));
    EXPECT_FALSE(files.same(in("none.dat"), in("nor this.dat")));
    EXPECT_FALSE(files.same(in("a.dat"), ""));
}

#ifdef Q_OS_UNIX

TEST_F(SafeFileTest, ALinkLeadsToTheSameFile) {
    files.write(in("a.dat"), "a");
    ASSERT_TRUE(QFile::link(QStringLiteral("a.dat"), folder.filePath(QStringLiteral("link.dat"))));
    EXPECT_TRUE(files.same(in("link.dat"), in("a.dat")));
}

TEST_F(SafeFileTest, PipeIsRefusedInsteadOfWaitedFor) {
    ASSERT_EQ(mkfifo(in("pipe").c_str(), 0600), 0);
    EXPECT_EQ(faultNumber([&] { files.read(in("pipe"), 10); }), 75);
    EXPECT_EQ(faultNumber([&] { files.write(in("pipe"), "x"); }), 75);
}

// A limit on the size of files stands for a full disk: writing stops in the middle, for root as well.
class SizeLimit {
public:
    explicit SizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

class SafeFileNoRoom : public SafeFileTest, public ::testing::WithParamInterface<std::size_t> {};

TEST_P(SafeFileNoRoom, OldFileStaysWhole) {
    files.write(in("a.dat"), "old");
    int number = 0;
    {
        const SizeLimit limit(GetParam() / 2);
        number = faultNumber([&] { files.write(in("a.dat"), std::string(GetParam(), 'n')); });
    }
    EXPECT_EQ(number, 57);
    EXPECT_EQ(files.read(in("a.dat"), 100), "old");
    EXPECT_EQ(entries(), 1);
}

// Sizes on either side of what the file system takes at once.
INSTANTIATE_TEST_SUITE_P(Payloads, SafeFileNoRoom, ::testing::Values(2U, 100U, 16'000U, 20'000U, 400'000U));

#ifdef Q_OS_LINUX

// The number of the fault that writing on a disk of 8 kB ends with, -1 where none can be set up. The disk
// exists in a child process only.
int numberOnSmallDisk(const std::string& where, const std::function<void()>& action) {
    constexpr int noDisk = 255;
    const pid_t child = fork();
    if (child == 0) {
        if (unshare(CLONE_NEWNS) != 0)
            _exit(noDisk);
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
        if (mount("none", where.c_str(), "tmpfs", 0, "size=8k") != 0)
            _exit(noDisk);
        _exit(faultNumber(action));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status) == noDisk ? -1 : WEXITSTATUS(status);
}

TEST_F(SafeFileTest, AFullDiskIsFault61WhateverItStillTook) {
    for (const std::size_t size : {12'000U, 20'000U, 400'000U}) {
        const int number = numberOnSmallDisk(folder.path().toStdString(),
                                             [&] { files.write(in("a.dat"), std::string(size, 'n')); });
        if (number < 0)
            GTEST_SKIP() << "only root can set up a small disk";
        EXPECT_EQ(number, 61) << size;
    }
}

#endif

TEST_F(SafeFileTest, DeviceWithoutRoomIsNotReplacedByAFile) {
    EXPECT_EQ(faultNumber([&] { files.write("/dev/full", "x"); }), 75);
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/full")).isFile());
}

// Rights bind ordinary users only, so root runs these as somebody else in a child process.
int numberAsOrdinaryUser(const std::function<void()>& action) {
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(255);
        _exit(faultNumber(action));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

TEST_F(SafeFileTest, NoRightIsFault70) {
    files.write(in("closed.dat"), "secret");
    ASSERT_EQ(chmod(in("closed.dat").c_str(), 0), 0);
    ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0555), 0);
    EXPECT_EQ(numberAsOrdinaryUser([&] { files.read(in("closed.dat"), 10); }), 70);
    EXPECT_EQ(numberAsOrdinaryUser([&] { files.write(in("closed.dat"), "x"); }), 70);
    EXPECT_EQ(numberAsOrdinaryUser([&] { files.write(in("new.dat"), "x"); }), 70);
    ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_EQ(entries(), 1);
}

#endif

} // namespace
} // namespace tally
