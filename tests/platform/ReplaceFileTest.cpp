// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ReplaceFile.h"

#include "core/Fault.h"
#include "platform/SafeFile.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifndef Q_OS_WIN

#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tally {
namespace {

struct ReplaceFileTest : ::testing::Test {
    QTemporaryDir dir;
    SafeFile files;
    std::string folder = dir.path().toStdString();

    std::string in(const std::string& name) const { return folder + "/" + name; }
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        DIR* entries = opendir(folder.c_str());
        while (const dirent* entry = readdir(entries))
            if (entry->d_name[0] != '.' || entry->d_name[1] > '.')
                all.emplace_back(entry->d_name);
        closedir(entries);
        return all;
    }
    static struct stat facts(const std::string& path) {
        struct stat found = {};
        stat(path.c_str(), &found);
        return found;
    }
    static void put(const std::string& path) {
        const int file = open(path.c_str(), O_CREAT | O_WRONLY, 0600);
        ASSERT_GE(file, 0);
        ASSERT_EQ(write(file, "half", 4), 4);
        close(file);
    }
};

using Names = std::vector<std::string>;

TEST_F(ReplaceFileTest, ANameIsBytesWhateverTheySpell) {
    replaceFile(in("a\xff.dat"), "one");
    replaceFile(in("a\xfe.dat"), "two");
    EXPECT_EQ(names().size(), 2U);
    EXPECT_TRUE(files.exists(in("a\xff.dat")));
    EXPECT_EQ(files.read(in("a\xff.dat"), 10), "one");
    EXPECT_EQ(files.read(in("a\xfe.dat"), 10), "two");
    EXPECT_FALSE(files.same(in("a\xff.dat"), in("a\xfe.dat")));
    EXPECT_FALSE(files.exists(in("a\xfd.dat")));
    // QTemporaryDir cannot name them.
    unlink(in("a\xff.dat").c_str());
    unlink(in("a\xfe.dat").c_str());
}

TEST_F(ReplaceFileTest, TheLongestNameOfAFileIsNotTooLong) {
    const std::string longest(255, 'n');
    replaceFile(in(longest), "old");
    replaceFile(in(longest), "new");
    EXPECT_EQ(files.read(in(longest), 10), "new");
    EXPECT_EQ(names(), Names{longest});
    EXPECT_THROW(replaceFile(in(longest + "n"), "x"), Fault);
    EXPECT_EQ(names(), Names{longest});
}

TEST_F(ReplaceFileTest, AFileKeepsItsModeAndANewOneTakesThatOfTheMask) {
    const mode_t before = umask(022);
    replaceFile(in("new.dat"), "x");
    replaceFile(in("own.dat"), "x", Access::owner);
    umask(before);
    EXPECT_EQ(facts(in("new.dat")).st_mode & 07777U, 0644U);
    EXPECT_EQ(facts(in("own.dat")).st_mode & 07777U, 0600U);
    ASSERT_EQ(chmod(in("new.dat").c_str(), 0640), 0);
    replaceFile(in("new.dat"), "y");
    EXPECT_EQ(facts(in("new.dat")).st_mode & 07777U, 0640U);
}

TEST_F(ReplaceFileTest, RootLeavesAFileToItsOwner) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a file away";
    replaceFile(in("a.dat"), "old");
    ASSERT_EQ(chown(in("a.dat").c_str(), 1234, 2345), 0);
    ASSERT_EQ(chmod(in("a.dat").c_str(), 0660), 0);
    replaceFile(in("a.dat"), "new");
    EXPECT_EQ(files.read(in("a.dat"), 10), "new");
    EXPECT_EQ(facts(in("a.dat")).st_uid, 1234U);
    EXPECT_EQ(facts(in("a.dat")).st_gid, 2345U);
    EXPECT_EQ(facts(in("a.dat")).st_mode & 07777U, 0660U);
}

TEST_F(ReplaceFileTest, ALinkStaysAndWhatItLeadsToIsReplaced) {
    replaceFile(in("real.dat"), "old");
    ASSERT_EQ(symlink("real.dat", in("link.dat").c_str()), 0);
    ASSERT_EQ(symlink((folder + "/later.dat").c_str(), in("dangling.dat").c_str()), 0);
    replaceFile(in("link.dat"), "new");
    replaceFile(in("dangling.dat"), "made");
    EXPECT_EQ(files.read(in("real.dat"), 10), "new");
    EXPECT_EQ(files.read(in("later.dat"), 10), "made");
    struct stat link = {};
    ASSERT_EQ(lstat(in("link.dat").c_str(), &link), 0);
    EXPECT_TRUE(S_ISLNK(link.st_mode));
}

TEST_F(ReplaceFileTest, WhatAKilledProgramLeftIsRemovedAtTheNextSave) {
    put(in(".tallyline-1-1.part"));
    put(in(".tallyline-notes.txt"));
    replaceFile(in("a.dat"), "x");
    auto left = names();
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left, (Names{".tallyline-notes.txt", "a.dat"}));
}

TEST_F(ReplaceFileTest, WhatAnotherProgramIsWritingStays) {
    put(in(".tallyline-1-1.part"));
    const int other = open(in(".tallyline-1-1.part").c_str(), O_RDWR);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    replaceFile(in("a.dat"), "x");
    EXPECT_EQ(names().size(), 2U);
    close(other);
}

TEST_F(ReplaceFileTest, AFolderThatMayBeWrittenButNotReadWillDo) {
    ASSERT_EQ(chmod(folder.c_str(), 0777), 0);
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(2);
        if (geteuid() != 65534 || chdir(folder.c_str()) != 0)
            _exit(geteuid() == 65534 ? 2 : 3);
        mkdir("drop", 0333);
        try {
            replaceFile("drop/a.dat", "x");
        } catch (const Fault&) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WEXITSTATUS(status) == 3)
        GTEST_SKIP() << "only root can become somebody else";
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(chmod(in("drop").c_str(), 0777), 0);
    EXPECT_EQ(files.read(in("drop/a.dat"), 10), "x");
}

TEST_F(ReplaceFileTest, ManyProgramsMayReplaceOneFileAtOnce) {
    constexpr int programs = 4;
    std::vector<pid_t> children;
    for (int i = 0; i < programs; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            const std::string text(20000, static_cast<char>('a' + i));
            int failed = 0;
            for (int k = 0; k < 25; ++k) {
                try {
                    replaceFile(in("a.dat"), text);
                    const std::string now = files.read(in("a.dat"), 100000);
                    failed += now.size() != text.size() || now != std::string(text.size(), now[0]) ? 1 : 0;
                } catch (const Fault&) {
                    ++failed;
                }
            }
            _exit(failed);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(WEXITSTATUS(status), 0);
    }
    EXPECT_EQ(names(), Names{"a.dat"});
}

} // namespace
} // namespace tally

#endif
