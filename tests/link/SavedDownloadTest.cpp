// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/SavedDownload.h"

#include "LinkBench.h"
#include "core/RecentFiles.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::header;
using testing::memory;

std::string withSerial(const std::string& serial, const std::string& time = "03-31-24 14:05") {
    return "noise\r\n" + header("KWT", 'a', time).replace(7, 4, serial) + "\rT: 1\x1a";
}

TEST(SavedDownloadTest, TheNameIsSerialNumberAndDay) {
    EXPECT_EQ(proposedName(withSerial("4127")), "4127-2024-03-31.dat");
    EXPECT_EQ(proposedName(withSerial(" 27 ")), "27-2024-03-31.dat");
    EXPECT_EQ(proposedName(withSerial("4/\\\x80")), "4___-2024-03-31.dat");
}

TEST(SavedDownloadTest, WhatTheHeaderLacksIsLeftOut) {
    EXPECT_EQ(proposedName(withSerial("    ")), "2024-03-31.dat");
    EXPECT_EQ(proposedName(withSerial("4127", "00-00-00 00:00")), "4127.dat");
    EXPECT_EQ(proposedName("KW\r"), "recording.dat");
}

TEST(SavedDownloadTest, TheQuestionStartsWhereTheLastDownloadWent) {
    testing::MemorySettings settings;
    const FileQuestion first = saveQuestion(memory(), settings, "/default", "data files");
    EXPECT_TRUE(first.save);
    EXPECT_EQ(first.filter, "data files");
    EXPECT_EQ(first.folder, "/default");
    EXPECT_EQ(first.name, "1234-2024-03-15.dat");
    noteSaved(settings, "/field/north/1234-2024-03-15.dat");
    EXPECT_EQ(saveQuestion(memory(), settings, "/default", "").folder, "/field/north");
    EXPECT_EQ(recentFiles(settings)[0], "/field/north/1234-2024-03-15.dat");
    noteSaved(settings, "/top.dat");
    EXPECT_EQ(saveQuestion(memory(), settings, "/default", "").folder, "/");
}

TEST(SavedDownloadTest, SaysWhereAndHowMuch) {
    EXPECT_EQ(savedText(memory(3), "/d/new.dat"), "Saved in /d/new.dat: instrument 1234, 30 readings.");
    EXPECT_EQ(savedText("KW\r", "/d/new.dat"), "Saved in /d/new.dat.");
}

} // namespace
} // namespace tally
