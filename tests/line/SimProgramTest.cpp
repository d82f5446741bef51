// SPDX-License-Identifier: GPL-3.0-or-later
#include "OpenLine.h"
#include "platform/PortList.h"
#include "platform/SimulatedInstrument.h"
#include "support/Places.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tally {
namespace {

constexpr int waitFor = 10'000; // milliseconds

// "tallyline-sim" as a process.
struct Program {
    QProcess process;

    explicit Program(const QStringList& arguments) {
        process.start(QString::fromStdString(::testing::binDir() + "/tallyline-sim"), arguments);
    }
    ~Program() {
        process.kill();
        process.waitForFinished(waitFor);
    }
    // The device that it announces.
    std::string ready() {
        while (!process.canReadLine() && process.waitForReadyRead(waitFor))
            continue;
        const QByteArray line = process.readLine();
        return line.startsWith("READY ") ? line.mid(6).trimmed().toStdString() : std::string();
    }
    int end() {
        process.terminate();
        return status();
    }
    int status() {
        const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(waitFor);
        return ended ? process.exitCode() : -1;
    }
};

std::string receive(const std::string& device, const std::string& settings = "9600,N,8,1") {
    SerialLine line([&](int) { return device; });
    QtWaiter waiter(line);
    line.Settings(settings);
    line.EOFEnable(true);
    line.PortOpen(true);
    std::string all;
    while (all.find('\x1a') == std::string::npos &&
           waiter.until(waiter.now() + testing::patience) == Wake::data) {
        const std::string next = line.Input();
        if (next.empty() && !line.isOpen())
            break;
        all += next;
    }
    return all;
}

TEST(SimProgram, SaysItsVersion) {
    Program program({QStringLiteral("--version")});
    EXPECT_EQ(program.status(), 0);
    EXPECT_TRUE(program.process.readAllStandardOutput().startsWith("tallyline-sim 0."));
}

TEST(SimProgram, AnnouncesItsDeviceAndEndsWhenAsked) {
    Program program(
        {QStringLiteral("--count"), QStringLiteral("5"), QStringLiteral("--speed"), QStringLiteral("0")});
    const std::string text = receive(program.ready());
    EXPECT_EQ(text.substr(0, 4), "KWTa");
    EXPECT_EQ(text.size(), 56U + 1 + 2 + 5 * 4 + 1);
    EXPECT_EQ(program.end(), 0);
}

TEST(SimProgram, MakesALinkAndTakesItAway) {
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("instrument"));
    Program program({QStringLiteral("--link"), link, QStringLiteral("--speed"), QStringLiteral("0")});
    const std::string device = program.ready();
    EXPECT_EQ(QFile::symLinkTarget(link).toStdString(), device);
    EXPECT_EQ(receive(link.toStdString()).substr(0, 3), "KWT");
    program.end();
    EXPECT_FALSE(QFile::exists(link));
}

TEST(SimProgram, WhatWasRecordedCanBePlayedBack) {
    const QTemporaryDir folder;
    const QString record = folder.filePath(QStringLiteral("record.txt"));
    std::string sent;
    {
        Program program({QStringLiteral("--type"), QStringLiteral("8"), QStringLiteral("--count"),
                         QStringLiteral("300"), QStringLiteral("--record"), record,
                         QStringLiteral("--once")});
        sent = receive(program.ready(), "115200,N,8,1");
        EXPECT_EQ(program.status(), 0);
    }
    ASSERT_GT(sent.size(), 1200U);
    Program program({QStringLiteral("--replay"), record});
    EXPECT_EQ(receive(program.ready(), "115200,N,8,1"), sent);
    // The record is at its end.
    EXPECT_EQ(program.status(), 0);
}

TEST(SimProgram, ReplacesARecordOnlyWhenAskedTo) {
    const QTemporaryDir folder;
    const QString record = folder.filePath(QStringLiteral("record.txt"));
    QFile file(record);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("an old record\n");
    file.close();
    Program unasked({QStringLiteral("--record"), record});
    EXPECT_EQ(unasked.status(), 1);
    EXPECT_TRUE(unasked.process.readAllStandardError().contains("--overwrite"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("an old record\n"));
    file.close();
    Program asked({QStringLiteral("--record"), record, QStringLiteral("--overwrite"),
                   QStringLiteral("--once"), QStringLiteral("--speed"), QStringLiteral("0")});
    receive(asked.ready());
    EXPECT_EQ(asked.status(), 0);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("# What happened on a serial line"));
}

TEST(SimProgram, FollowsAScript) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("script.txt"));
    QFile script(path);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("until-open\nwait 0.1\nsend \"PQXa\\x1A\"\nuntil-closed\n");
    script.close();
    Program program({QStringLiteral("--script"), path});
    EXPECT_EQ(receive(program.ready()), "PQXa\x1a");
    EXPECT_EQ(program.status(), 0);
}

TEST(SimProgram, EndsWhenTheAdapterIsPulledAndComesBackWithLoop) {
    Program once({QStringLiteral("--fault"), QStringLiteral("gone=10")});
    EXPECT_EQ(receive(once.ready()).size(), 10U);
    EXPECT_EQ(once.status(), 0);
    Program again({QStringLiteral("--fault"), QStringLiteral("gone=10"), QStringLiteral("--loop")});
    EXPECT_EQ(receive(again.ready()).size(), 10U);
    EXPECT_EQ(receive(again.ready()).size(), 10U);
}

TEST(SimProgram, WaitsForEnterWhenAsked) {
    Program program({QStringLiteral("--plug"), QStringLiteral("enter"), QStringLiteral("--speed"),
                     QStringLiteral("0"), QStringLiteral("--count"), QStringLiteral("1")});
    SerialLine line([device = program.ready()](int) { return device; });
    QtWaiter waiter(line);
    line.Settings("9600,N,8,1");
    line.PortOpen(true);
    EXPECT_EQ(waiter.until(waiter.now() + 700), Wake::due);
    program.process.write("\n");
    EXPECT_EQ(waiter.until(waiter.now() + testing::patience), Wake::data);
}

TEST(SimProgram, HearsOfTheResetThroughItsPipe) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("dtr"));
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    Program program({QStringLiteral("--dtr"), pipe, QStringLiteral("--reset"), QStringLiteral("restarts"),
                     QStringLiteral("--plug"), QStringLiteral("0.3"), QStringLiteral("--speed"),
                     QStringLiteral("0"), QStringLiteral("--count"), QStringLiteral("1")});
    SerialLine line([device = program.ready()](int) { return device; });
    QtWaiter waiter(line);
    QFile dtr(pipe);
    ASSERT_TRUE(dtr.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    line.Settings("9600,N,8,1");
    line.PortOpen(true);
    dtr.write("0");
    EXPECT_EQ(waiter.until(waiter.now() + 700), Wake::due);
    dtr.write("1");
    EXPECT_EQ(waiter.until(waiter.now() + testing::patience), Wake::data);
}

TEST(SimProgram, ExplainsItself) {
    Program program({QStringLiteral("--help")});
    EXPECT_EQ(program.status(), 0);
    const QByteArray help = program.process.readAllStandardOutput();
    for (const char* word : {"--type", "--fault", "--script", "--replay", "HVN500/550", "low-battery",
                             "until-open", "Try this with a class:"})
        EXPECT_TRUE(help.contains(word)) << word;
}

TEST(SimProgram, WrongUsageEndsWithTwoAndWords) {
    for (const QStringList& arguments : {QStringList{QStringLiteral("--type"), QStringLiteral("11")},
                                         {QStringLiteral("--fault"), QStringLiteral("x")},
                                         {QStringLiteral("--clock"), QStringLiteral("yesterday")},
                                         {QStringLiteral("--plug"), QStringLiteral("-1")},
                                         {QStringLiteral("--before-answer"), QStringLiteral("lines")},
                                         {QStringLiteral("--reset"), QStringLiteral("x")},
                                         {QStringLiteral("--no-such-option")}}) {
        Program program(arguments);
        EXPECT_EQ(program.status(), 2) << arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_FALSE(program.process.readAllStandardError().isEmpty());
    }
}

TEST(SimProgram, FilesThatCannotBeReadEndWithOneAndWords) {
    const QTemporaryDir folder;
    const QString damaged = folder.filePath(QStringLiteral("damaged"));
    QFile file(damaged);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no record\n");
    file.close();
    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--replay"), QStringLiteral("/no/such/file")},
          {QStringLiteral("--replay"), damaged},
          {QStringLiteral("--script"), damaged},
          {QStringLiteral("--record"), QStringLiteral("/no/such/folder/file")},
          {QStringLiteral("--link"), QStringLiteral("/no/such/folder/link")},
          {QStringLiteral("--dtr"), QStringLiteral("/no/such/pipe")},
          {QStringLiteral("--dtr"), damaged},
          {QStringLiteral("--link"), damaged}}) {
        Program program(arguments);
        EXPECT_EQ(program.status(), 1) << arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_TRUE(program.process.readAllStandardError().contains("tallyline-sim: "));
    }
}

TEST(SimProgram, RunsForAsLongAsItIsWanted) {
    const QString link = QString::fromStdString(simulatedInstrument());
    {
        SimulatedInstrument instrument;
        ASSERT_TRUE(instrument.start(7));
        EXPECT_TRUE(instrument.start(7));
        EXPECT_TRUE(QFile::exists(link));
        EXPECT_EQ(PortList().presence(simulatedInstrument()), PortPresence::free);
        ASSERT_TRUE(instrument.start(10));
        SerialLine line([](int) { return simulatedInstrument(); });
        QtWaiter waiter(line);
        line.Settings("9600,N,8,1");
        line.InputLen(1);
        line.PortOpen(true);
        EXPECT_EQ(waiter.until(waiter.now() + testing::patience), Wake::data);
        EXPECT_EQ(line.Input(), "P");
    }
    EXPECT_FALSE(QFile::exists(link));
}

} // namespace
} // namespace tally
