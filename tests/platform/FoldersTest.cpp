// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Folders.h"

#include "platform/QtClock.h"

#include <QDir>
#include <QTemporaryDir>
#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif
#include <gmock/gmock.h>
#include <thread>

namespace tally {
namespace {

using ::testing::EndsWith;

TEST(Folders, SettingsStandInTheProgramsOwnFolderOfTheUser) {
    EXPECT_THAT(folders::settingsFile(), EndsWith("/Tallyline/Tallyline.ini"));
    EXPECT_NE(folders::config(), folders::cache());
    EXPECT_THAT(folders::data(), EndsWith("/Tallyline"));
}

#ifndef Q_OS_WIN
// Sets a variable of the environment for one test.
class Variable {
public:
    Variable(const char* name, const char* value)
        : name_(name), had_(qEnvironmentVariableIsSet(name)), old_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Variable() {
        if (had_)
            qputenv(name_, old_);
        else
            qunsetenv(name_);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    bool had_;
    QByteArray old_;
};

TEST(Folders, StandWhereTheEnvironmentSaysByteForByte) {
    const Variable data("XDG_DATA_HOME", "/some/pl\xff"
                                         "ce");
    EXPECT_EQ(folders::data(), "/some/pl\xff"
                               "ce/Tallyline");
}

TEST(Folders, ARelativePathInTheEnvironmentIsIgnored) {
    const Variable home("HOME", "/home/somebody");
    const Variable data("XDG_DATA_HOME", "data");
    const Variable config("XDG_CONFIG_HOME", "./config");
    const Variable cache("XDG_CACHE_HOME", "");
    EXPECT_EQ(folders::data(), "/home/somebody/.local/share/Tallyline");
    EXPECT_EQ(folders::config(), "/home/somebody/.config/Tallyline");
    EXPECT_EQ(folders::cache(), "/home/somebody/.cache/Tallyline");
}

TEST(Folders, AreMadeWithThoseAboveThemForThisUserAlone) {
    const QTemporaryDir dir;
    const std::string folder = dir.path().toStdString() + "/a/b";
    EXPECT_TRUE(folders::make(folder));
    EXPECT_TRUE(folders::make(folder));
    EXPECT_TRUE(folders::make(folder + "/"));
    struct stat facts = {};
    ASSERT_EQ(stat(folder.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777U, 0700U);
    EXPECT_FALSE(folders::make("/proc/no/such"));
}
#endif

TEST(Folders, HomeIsTheFirstPlaceToChooseAFolderFrom) {
    const auto volumes = folders::volumes();
    ASSERT_FALSE(volumes.empty());
    EXPECT_EQ(volumes[0].root, QDir::homePath().toStdString());
}

TEST(Folders, WallClockReadsLocalTimeAndTheOtherOneOnlyGoesForward) {
    const QtClock clock;
    const QDateTime before = QDateTime::currentDateTime();
    const CivilTime time = toCivil(clock.localTime());
    const QDateTime read(QDate(time.year, time.month, time.day), QTime(time.hour, time.minute));
    EXPECT_LE(qAbs(before.secsTo(read)), 60);
    const auto first = clock.now();
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
    EXPECT_GE(clock.now() - first, 3);
}

} // namespace
} // namespace tally
