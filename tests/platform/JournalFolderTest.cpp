// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JournalFolder.h"

#include "core/Fault.h"
#include "platform/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace tally {
namespace {

const JournalHeader header = {.commPort = 3,
                              .instrumentType = 11,
                              .settings = "9600,N,8,1",
                              .pcTime = toReadingTime({2024, 3, 15, 14, 5}),
                              .command = "download"};

struct JournalFolderTest : ::testing::Test {
    QTemporaryDir dir;
    SafeFile files;
    std::string folder = (dir.path() + QStringLiteral("/data/journal")).toStdString();
    JournalFolder journal{folder, files};
    std::vector<std::string> told;

    void SetUp() override {
        journal.onProblem([this](const std::string& text) { told.push_back(text); });
    }
    std::string receive(const std::string& text, JournalState state) {
        journal.begin(header);
        const std::string id = journal.id();
        journal.append(text);
        journal.end(state);
        journal.settle();
        return id;
    }
    QStringList names() const {
        return QDir(QString::fromStdString(folder)).entryList(QDir::Files, QDir::Name);
    }
};

TEST_F(JournalFolderTest, WhatIsAppendedIsInTheFileAtOnce) {
    journal.begin(header);
    journal.append("KWT");
    journal.append("a   1234");
    QFile raw(QString::fromStdString(folder + "/" + journal.id() + ".raw"));
    ASSERT_TRUE(raw.open(QIODevice::ReadOnly));
    EXPECT_EQ(withoutFilling(raw.readAll().toStdString()), "KWTa   1234");
    journal.end(JournalState::interrupted);
    EXPECT_EQ(raw.size(), 11);
}

TEST_F(JournalFolderTest, WhatIsReadIntoItsRoomIsKeptBeforeItIsAppended) {
    EXPECT_TRUE(journal.room().empty());
    journal.begin(header);
    const std::string id = journal.id();
    const std::string first = "KWTa   1234";
    for (std::size_t i = 0; i < first.size(); ++i) {
        journal.room()[0] = first[i];
        EXPECT_EQ(journal.list().at(0).bytes, i + 1);
        journal.append({journal.room().data(), 1});
    }
    std::string all = first;
    for (int i = 0; i < 40; ++i) {
        const std::string piece(20000, static_cast<char>('a' + i % 26));
        const auto room = journal.room();
        ASSERT_GE(room.size(), piece.size());
        std::copy(piece.begin(), piece.end(), room.begin());
        journal.append({room.data(), piece.size()});
        journal.append("-");
        all += piece + "-";
    }
    EXPECT_EQ(journal.text(id), all);
    journal.end(JournalState::interrupted);
    EXPECT_TRUE(journal.room().empty());
    EXPECT_EQ(journal.text(id), all);
    EXPECT_EQ(QFile(QString::fromStdString(folder + "/" + id + ".raw")).size(), qint64(all.size()));
}

TEST_F(JournalFolderTest, ZerosThatWereReceivedAreKept) {
    const std::string text = std::string("\0a\0", 3) + std::string(9, '\0');
    EXPECT_EQ(journal.text(receive(text, JournalState::interrupted)), text);
}

TEST_F(JournalFolderTest, WhatWasSavedBeforeItWasOnTheDiskStaysSaved) {
    for (int i = 0; i < 20; ++i) {
        journal.begin(header);
        journal.append("kwt 999");
        journal.end(JournalState::received);
        journal.accepted("KWT 000");
        journal.mark(journal.id(), JournalState::saved);
        EXPECT_EQ(journal.list().at(0).state, JournalState::saved);
        journal.settle();
        EXPECT_EQ(journal.list().at(0).state, JournalState::saved);
    }
}

TEST_F(JournalFolderTest, AnEntryTellsWhatIsKnown) {
    journal.begin(header);
    journal.append("noise");
    journal.restart("115200,N,8,1");
    journal.append("..KWTa   1234 and so on");
    journal.clockDifference(-4);
    EXPECT_EQ(journal.list().at(0).state, JournalState::receiving);
    journal.end(JournalState::received);
    journal.end(JournalState::refused);
    const auto entries = journal.list();
    ASSERT_EQ(entries.size(), 1U);
    const JournalEntry& entry = entries[0];
    EXPECT_EQ(entry.state, JournalState::refused);
    EXPECT_EQ(entry.header.commPort, 3);
    EXPECT_EQ(entry.header.instrumentType, 11);
    EXPECT_EQ(entry.header.settings, "115200,N,8,1");
    EXPECT_EQ(entry.header.pcTime, header.pcTime);
    EXPECT_EQ(entry.header.command, "download");
    EXPECT_EQ(entry.bytes, 23U);
    EXPECT_EQ(entry.model, "KWT");
    EXPECT_EQ(entry.serial, "1234");
    EXPECT_EQ(entry.clockDifference, -4);
    EXPECT_EQ(journal.text(entry.id), "..KWTa   1234 and so on");
}

TEST_F(JournalFolderTest, AllByteValuesAreKept) {
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    const std::string id = receive(all, JournalState::received);
    EXPECT_EQ(journal.text(id), all);
}

TEST_F(JournalFolderTest, AnAcceptedTextIsWhatIsSavedLater) {
    journal.begin(header);
    journal.append("kwt 999");
    journal.end(JournalState::received);
    journal.accepted("KWT 000");
    const std::string id = journal.id();
    EXPECT_EQ(journal.list().at(0).state, JournalState::accepted);
    EXPECT_EQ(journal.text(id), "KWT 000");
    journal.mark(id, JournalState::saved);
    EXPECT_EQ(journal.list().at(0).state, JournalState::saved);
}

TEST_F(JournalFolderTest, AnAcceptedTextCanBeReadBeforeItIsOnTheDisk) {
    for (int i = 0; i < 20; ++i) {
        journal.begin(header);
        journal.append("kwt 999");
        journal.end(JournalState::received);
        journal.accepted("KWT 000");
        EXPECT_EQ(journal.list().at(0).state, JournalState::accepted);
        EXPECT_EQ(journal.text(journal.id()), "KWT 000");
        EXPECT_TRUE(journal.keeps(journal.id()));
        journal.mark(journal.id(), JournalState::dropped);
        EXPECT_FALSE(journal.keeps(journal.id()));
    }
}

TEST_F(JournalFolderTest, OnlyAnAcceptedTextOnTheDiskIsKept) {
    const std::string id = receive("KWT", JournalState::received);
    EXPECT_FALSE(journal.keeps(id));
    EXPECT_FALSE(journal.keeps(""));
    EXPECT_FALSE(journal.keeps("20200101-000000-000-1"));
    journal.accept(id, "KWT");
    EXPECT_TRUE(journal.keeps(id));
    QFile::remove(QString::fromStdString(folder + "/" + id + ".dat"));
    EXPECT_FALSE(journal.keeps(id));
}

TEST_F(JournalFolderTest, AnInterruptedReceptionCanBeAcceptedLater) {
    const std::string id = receive("KWT", JournalState::interrupted);
    EXPECT_EQ(journal.list().at(0).state, JournalState::interrupted);
    journal.accept(id, "KWT!");
    EXPECT_EQ(journal.list().at(0).state, JournalState::accepted);
    EXPECT_EQ(journal.text(id), "KWT!");
}

TEST_F(JournalFolderTest, AReceptionWithoutACharacterLeavesNothing) {
    receive("", JournalState::interrupted);
    EXPECT_TRUE(journal.list().empty());
    EXPECT_EQ(names(), QStringList());
}

TEST_F(JournalFolderTest, CharactersOutsideAReceptionAreIgnored) {
    journal.append("x");
    journal.restart("9600,N,8,1");
    const std::string id = receive("abc", JournalState::received);
    journal.append("later");
    EXPECT_EQ(journal.text(id), "abc");
}

TEST_F(JournalFolderTest, TheLast20AreKeptAndUnsavedOnesAlways) {
    const std::string unsaved = receive("first", JournalState::received);
    const std::string saved = receive("second", JournalState::saved);
    for (int i = 0; i < 25; ++i)
        receive("more", i % 2 == 0 ? JournalState::saved : JournalState::dropped);
    const auto entries = journal.list();
    EXPECT_EQ(entries.size(), Journal::keep + 1);
    EXPECT_EQ(entries.back().id, unsaved);
    EXPECT_EQ(journal.text(unsaved), "first");
    EXPECT_THROW(journal.text(saved), Fault);
    EXPECT_EQ(names().size(), 2 * (static_cast<int>(Journal::keep) + 1));
    for (std::size_t i = 1; i < entries.size(); ++i)
        EXPECT_GT(entries[i - 1].id, entries[i].id);
}

TEST_F(JournalFolderTest, AFolderThatCannotBeWrittenIsToldOnceForEachReceptionAndNothingElseHappens) {
    QFile blocker(dir.path() + QStringLiteral("/data"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    for (int i = 0; i < 2; ++i) {
        journal.begin(header);
        journal.append("KWT");
        journal.restart("115200,N,8,1");
        journal.clockDifference(1);
        journal.end(JournalState::received);
        journal.accepted("KWT");
        EXPECT_EQ(journal.id(), "");
    }
    ASSERT_EQ(told.size(), 2U);
    EXPECT_NE(told[0].find(folder), std::string::npos);
    EXPECT_EQ(journal.problem(), told[0]);
    EXPECT_TRUE(journal.list().empty());
    blocker.remove();
    receive("abc", JournalState::received);
    EXPECT_EQ(journal.problem(), "");
    EXPECT_EQ(journal.list().size(), 1U);
}

TEST_F(JournalFolderTest, AnUnknownOrStrangeNameIsNotFound) {
    for (const std::string id : {"", "2024", "../../etc/passwd", "20240315-140512-123-4/../x"}) {
        EXPECT_THROW(journal.text(id), Fault) << id;
        EXPECT_THROW(journal.mark(id, JournalState::saved), Fault) << id;
    }
}

TEST_F(JournalFolderTest, StrangeAndDamagedFilesAreReadAsFarAsTheyGo) {
    receive("KWTa   1234", JournalState::received);
    const auto put = [this](const std::string& name, const std::string& bytes) {
        QFile file(QString::fromStdString(folder + "/" + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    };
    put("notes.log", "not ours");
    put("20200101-000000-000-1.log", "part 99999999 x\nport\nstate sav");
    put("20200101-000000-000-1.raw", "PQX");
    put("20200101-000000-000-2.log", "");
    put("20200101-000000-000-3.raw", "without a log");
    const auto entries = journal.list();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[1].id, "20200101-000000-000-1");
    EXPECT_EQ(entries[1].state, JournalState::interrupted);
    EXPECT_EQ(entries[1].bytes, 0U);
    EXPECT_EQ(journal.text(entries[1].id), "");
}

#ifndef Q_OS_WIN
TEST_F(JournalFolderTest, EveryFileIsForThisUserAlone) {
    const mode_t before = umask(0);
    journal.begin(header);
    journal.append("KWT");
    journal.end(JournalState::received);
    journal.accepted("KWT");
    journal.settle();
    const std::string second = receive("PQX", JournalState::interrupted);
    journal.accept(second, "PQX");
    journal.settle();
    umask(before);
    ASSERT_EQ(names().size(), 6);
    for (const QString& name : names()) {
        struct stat facts = {};
        ASSERT_EQ(stat((folder + "/" + name.toStdString()).c_str(), &facts), 0);
        EXPECT_EQ(facts.st_mode & 07777U, 0600U) << name.toStdString();
    }
}

// A limit on the size of files stands for a disk that fills up in the middle of a reception.
TEST_F(JournalFolderTest, ADiskThatFillsUpLeavesWhatItTookAndSaysWhy) {
    rlimit usual = {};
    getrlimit(RLIMIT_FSIZE, &usual);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = usual;
    small.rlim_cur = 1000;
    setrlimit(RLIMIT_FSIZE, &small);
    journal.begin(header);
    const std::string id = journal.id();
    journal.append(std::string(800, 'a'));
    EXPECT_TRUE(told.empty());
    journal.append(std::string(800, 'b'));
    journal.append(std::string(100, 'c'));
    journal.end(JournalState::received);
    journal.accepted(std::string(1700, 'x'));
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, handler);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find("File too large"), std::string::npos);
    EXPECT_EQ(journal.id(), id);
    EXPECT_FALSE(journal.keeps(id));
    EXPECT_EQ(journal.list().at(0).state, JournalState::interrupted);
    EXPECT_EQ(journal.text(id), std::string(800, 'a') + std::string(200, 'b'));
}

TEST_F(JournalFolderTest, ALogThatAnotherProgramHoldsIsNotRemoved) {
    const std::string id = "20200101-000000-000-1";
    receive("abc", JournalState::saved);
    QFile log(QString::fromStdString(folder + "/" + id + ".log"));
    ASSERT_TRUE(log.open(QIODevice::WriteOnly));
    ASSERT_EQ(flock(log.handle(), LOCK_EX), 0);
    receive("", JournalState::interrupted);
    EXPECT_TRUE(log.exists());
    log.close();
    receive("", JournalState::interrupted);
    EXPECT_FALSE(log.exists());
}

TEST_F(JournalFolderTest, AProgramThatIsKilledLeavesEveryByteAndNoLock) {
    int pipeEnds[2];
    ASSERT_EQ(pipe(pipeEnds), 0);
    const pid_t child = fork();
    if (child == 0) {
        JournalFolder own(folder, files);
        own.begin(header);
        own.append("KWTa   1234");
        own.append(" half a tex");
        [[maybe_unused]] const auto written = write(pipeEnds[1], "x", 1);
        for (;;)
            pause();
    }
    char mark = 0;
    ASSERT_EQ(read(pipeEnds[0], &mark, 1), 1);
    EXPECT_EQ(journal.list().at(0).state, JournalState::receiving);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(pipeEnds[0]);
    close(pipeEnds[1]);
    const auto entries = journal.list();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].state, JournalState::interrupted);
    EXPECT_EQ(journal.text(entries[0].id), "KWTa   1234 half a tex");
    journal.mark(entries[0].id, JournalState::dropped);
    EXPECT_EQ(journal.list().at(0).state, JournalState::dropped);
}
#endif

} // namespace
} // namespace tally
