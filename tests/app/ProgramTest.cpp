// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SafeFile.h"
#include "support/Places.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace tally {
namespace {

using ::testing::HasSubstr;

// The program started as a process with a home of its own.
class ProgramTest : public ::testing::Test {
protected:
    QTemporaryDir home;
    SafeFile files;

    std::string settings() const {
        return home.filePath(QStringLiteral("config/Tallyline/Tallyline.ini")).toStdString();
    }
    int run(const QStringList& arguments, const QString& platform = QStringLiteral("offscreen")) {
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
        environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), home.filePath(QStringLiteral("cache")));
        program.setProcessEnvironment(environment);
        program.start(QString::fromStdString(::testing::binDir() + "/tallyline"), arguments);
        if (!program.waitForFinished(30000))
            return -1;
        output = program.readAllStandardOutput().toStdString();
        errors = program.readAllStandardError().toStdString();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -2;
    }
    std::string output;
    std::string errors;
};

TEST_F(ProgramTest, OpensAFileOfTheCommandLineAndKeepsItInTheRecentList) {
    const QString file = QString::fromStdString(::testing::sourceDir() + "/samples/feeder-15min.dat");
    EXPECT_EQ(run({QStringLiteral("--quit-after-first-frame"), QStringLiteral("--plot"), file}), 0);
    EXPECT_THAT(files.read(settings(), 10000), HasSubstr("mrufile1=" + file.toStdString()));
}

TEST_F(ProgramTest, StartsWithDamagedSettings) {
    ASSERT_TRUE(QDir(home.path()).mkpath(QStringLiteral("config/Tallyline")));
    files.write(settings(), std::string("\x00\xff[[[", 5));
    EXPECT_EQ(run({QStringLiteral("--quit-after-first-frame")}), 0);
}

TEST_F(ProgramTest, SaysItsVersion) {
    EXPECT_EQ(run({QStringLiteral("--version")}), 0);
    EXPECT_THAT(output, HasSubstr("tallyline "));
}

TEST_F(ProgramTest, AnUnknownOptionIsWrongUsage) {
    EXPECT_EQ(run({QStringLiteral("--nonsense")}), 2);
    EXPECT_THAT(errors, HasSubstr("nonsense"));
    EXPECT_THAT(errors, HasSubstr("Usage: tallyline "));
    EXPECT_EQ(run({QStringLiteral("-x")}), 2);
    EXPECT_EQ(run({QStringLiteral("--quit-after-first-frame"), QStringLiteral("-platform"),
                   QStringLiteral("offscreen")}),
              0);
}

TEST_F(ProgramTest, SaysThatThereIsNoDisplay) {
    const QString xcb = QStringLiteral("xcb");
    EXPECT_EQ(run({QStringLiteral("--quit-after-first-frame")}, xcb), 1);
    EXPECT_EQ(errors, "No display: Tallyline cannot open its window here. tallyline-cli needs none.\n");
    EXPECT_EQ(run({QStringLiteral("--help")}, xcb), 0);
    EXPECT_THAT(output, HasSubstr("FILE"));
    EXPECT_EQ(run({QStringLiteral("--nonsense")}, xcb), 2);
}

} // namespace
} // namespace tally
