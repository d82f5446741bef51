// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Folders.h"

#include "platform/QtClock.h"

#include <QDir>
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

TEST(Folders, HomeIsTheFirstPlaceToChooseAFolderFrom) {
    const auto volumes = folders::volumes();
    ASSERT_FALSE(volumes.empty());
    EXPECT_EQ(volumes[0].root, QDir::homePath().toStdString());
}

TEST(QtClock, WallClockReadsLocalTimeAndTheOtherOneOnlyGoesForward) {
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
