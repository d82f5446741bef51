// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/UserSettings.h"

#include "platform/SafeFile.h"
#include "support/MemoryFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace tally {
namespace {

using ::testing::HasSubstr;

class UserSettingsTest : public ::testing::Test {
protected:
    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("Tallyline.ini")).toStdString();
    tally::testing::MemoryFiles files;
    std::vector<std::string> reports;

    void listen(UserSettings& settings) {
        settings.onProblem([this](const std::string& text) { reports.push_back(text); });
    }
};

TEST_F(UserSettingsTest, MissingKeyReadsAsTheEmptyText) {
    UserSettings settings(files, path);
    listen(settings);
    EXPECT_EQ(settings.get("Settings", "Vline"), "");
    EXPECT_TRUE(reports.empty());
}

TEST_F(UserSettingsTest, KeysStandInTheFileAsTheyAre) {
    UserSettings settings(files, path);
    settings.set("Comm", "TLY.MSComm1.CommPort", "3");
    settings.flush();
    EXPECT_EQ(files.contents[path], "[Comm]\nTLY.MSComm1.CommPort=3\n");
}

TEST_F(UserSettingsTest, EveryTextComesBack) {
    const std::vector<std::string> texts = {
        "13800",   " blanks ", "C:\\data\\new", "say \"twice\"", "two\r\nlines",     "tab\tand = sign",
        "Zoë",     "\"",       "a;b",           "[x]",           "/d/k\xE4ufer.dat", "/\xFF\\\"/C:\\xE4",
        "C:\\xE4", ""};
    for (const auto& text : texts) {
        UserSettings(files, path).set("Security", "userid", text);
        EXPECT_EQ(UserSettings(files, path).get("Security", "userid"), text);
    }
}

TEST_F(UserSettingsTest, ValuesGoToTheFileTogetherWhenTheEventLoopComesToRest) {
    UserSettings settings(files, path);
    settings.set("Settings", "mrufile1", "/d/a.dat");
    settings.set("Settings", "mrufile2", "/d/b.dat");
    EXPECT_TRUE(files.contents.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ(files.contents[path], "[Settings]\nmrufile1=/d/a.dat\nmrufile2=/d/b.dat\n");
}

TEST_F(UserSettingsTest, HandWrittenWindowsPathIsTakenAsItStands) {
    files.contents[path] = "[Directory]\r\ndefault = D:\\meters\\1999\r\n";
    EXPECT_EQ(UserSettings(files, path).get("Directory", "default"), "D:\\meters\\1999");
}

TEST_F(UserSettingsTest, TwoProgramsMergeKeyByKey) {
    UserSettings one(files, path);
    UserSettings two(files, path);
    one.set("Settings", "Vline", "4160");
    one.flush();
    two.set("Security", "userid", "Ann");
    two.flush();
    const UserSettings third(files, path);
    EXPECT_EQ(third.get("Settings", "Vline"), "4160");
    EXPECT_EQ(third.get("Security", "userid"), "Ann");
}

TEST_F(UserSettingsTest, DamagedFileGivesTheLastGoodCopyAndIsReportedOnce) {
    UserSettings(files, path).set("Settings", "Vline", "4160");
    files.contents[path] = std::string("\x00\xff\x13 rubbish", 11);
    UserSettings settings(files, path);
    EXPECT_EQ(settings.get("Settings", "Vline"), "4160");
    listen(settings);
    settings.set("Security", "userid", "Ann");
    settings.flush();
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_THAT(reports[0], HasSubstr("damaged. The last good copy is used."));
    // The damaged file is kept, and what stands now is whole.
    EXPECT_THAT(files.contents[path + ".damaged"], HasSubstr("rubbish"));
    EXPECT_EQ(UserSettings(files, path).get("Settings", "Vline"), "4160");
    EXPECT_EQ(UserSettings(files, path).get("Security", "userid"), "Ann");
}

TEST_F(UserSettingsTest, DamagedFileWithoutACopyGivesWhatCanBeRead) {
    files.contents[path] = "[Settings]\nVline=4160\nthis is no entry\n";
    UserSettings settings(files, path);
    listen(settings);
    EXPECT_EQ(settings.get("Settings", "Vline"), "4160");
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_THAT(reports[0], HasSubstr("What could be read of it is used."));
}

TEST_F(UserSettingsTest, EmptiedFileGivesTheLastGoodCopy) {
    UserSettings(files, path).set("Settings", "Vline", "4160");
    files.contents[path] = "";
    UserSettings settings(files, path);
    listen(settings);
    EXPECT_EQ(settings.get("Settings", "Vline"), "4160");
    EXPECT_EQ(reports.size(), 1U);
}

TEST_F(UserSettingsTest, EmptyFileOfAFirstStartIsNoDamage) {
    files.contents[path] = "";
    UserSettings settings(files, path);
    listen(settings);
    EXPECT_EQ(settings.get("Settings", "Vline"), "");
    EXPECT_TRUE(reports.empty());
}

TEST_F(UserSettingsTest, HugeFileIsDamaged) {
    files.contents[path] = "[Settings]\nVline=" + std::string(2'000'000, '1') + "\n";
    UserSettings settings(files, path);
    listen(settings);
    EXPECT_EQ(settings.get("Settings", "Vline"), "");
    EXPECT_EQ(reports.size(), 1U);
}

TEST_F(UserSettingsTest, WhatCannotBeSavedHoldsWhileTheProgramRunsAndIsReportedOnce) {
    files.contents[path] = "[Settings]\nVline=4160\n";
    UserSettings settings(files, path);
    listen(settings);
    files.failWrite = fault::diskFull();
    settings.set("Settings", "Vline", "13800");
    settings.flush();
    settings.set("Security", "userid", "Ann");
    settings.flush();
    EXPECT_EQ(settings.get("Settings", "Vline"), "13800");
    EXPECT_EQ(settings.get("Security", "userid"), "Ann");
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_THAT(reports[0], HasSubstr("cannot be saved"));
    EXPECT_THAT(reports[0], HasSubstr("Disk full"));
    // With room again everything that was set is saved.
    files.failWrite.reset();
    settings.set("Directory", "default", "/data");
    settings.flush();
    EXPECT_EQ(UserSettings(files, path).get("Settings", "Vline"), "13800");
    EXPECT_EQ(UserSettings(files, path).get("Security", "userid"), "Ann");
}

TEST_F(UserSettingsTest, UnreadableFileIsReportedAndNeverOverwritten) {
    files.contents[path] = "[Settings]\nVline=4160\n";
    files.failRead = fault::permissionDenied();
    UserSettings settings(files, path);
    listen(settings);
    settings.set("Settings", "Vline", "1");
    settings.flush();
    EXPECT_EQ(settings.get("Settings", "Vline"), "1");
    EXPECT_EQ(files.contents[path], "[Settings]\nVline=4160\n");
    EXPECT_EQ(reports.size(), 1U);
}

TEST_F(UserSettingsTest, FolderIsMadeWhenItIsMissing) {
    SafeFile real;
    const std::string deep = folder.filePath(QStringLiteral("new/folder/Tallyline.ini")).toStdString();
    UserSettings(real, deep).set("Settings", "Vline", "4160");
    EXPECT_EQ(real.read(deep, 100), "[Settings]\nVline=4160\n");
    EXPECT_EQ(QDir(folder.filePath(QStringLiteral("new/folder"))).entryList(QDir::Files).size(), 2);
}

} // namespace
} // namespace tally
