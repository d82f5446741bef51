// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/CsvData.h"

#include "ExportFixture.h"
#include "core/Numbers.h"

#include <random>

namespace tally {
namespace {

using testing::addFile;
using testing::constant;
using testing::in;
using testing::linesOf;
using testing::ramp;

class CsvExport : public testing::ExportTest {
protected:
    Expected<Exported> write(int slot = 0) {
        return CsvData(recordings, slot, recordings.all(std::max(slot, 0)), place);
    }
    std::string exported(int slot = 0) {
        EXPECT_TRUE(write(slot));
        return files.contents.at("/out/Lotusint.csv");
    }
};

const ReadingTime fivePastTwo = toReadingTime({2024, 3, 15, 14, 5});

TEST_F(CsvExport, ALowFileIsWrittenWithOneDecimal) {
    addFile(recordings, "/data/a.dat", {1230, 1, 99, 1000, 32767, 0, 5, 10, 7}, {.start = fivePastTwo});
    const std::string lines = " 14:05  Mar 15, 24,  123.0,    000.1,    009.9,    100.0,    3276.7,    000.0,"
                              "    000.5,    001.0,  \r\n"
                              " 16:05  Mar 15, 24,  000.7,  \r\n";
    EXPECT_EQ(exported(), lines + "\r\n");
    EXPECT_EQ(write()->path, in("/out", "Lotusint.csv"));
    EXPECT_EQ(write()->text, in("/out", "Lotusint.csv") + " saved OK ");
}

TEST_F(CsvExport, AHighFileIsWrittenInWholeNumbers) {
    addFile(recordings, "/data/a.dat", {1230, 14, 15, 9990, 32767, 0, 4, 125, 25},
            {.low = false, .start = fivePastTwo});
    EXPECT_EQ(exported(), " 14:05  Mar 15, 24, 0123 ,   0001 ,   0002 ,   0999 ,   3277 ,   0000 ,   0000 ,"
                          "   0013 ,  \r\n"
                          " 16:05  Mar 15, 24, 0003 ,  \r\n\r\n");
}

TEST_F(CsvExport, NegativeReadingsKeepTheirSign) {
    addFile(recordings, "/data/a.dat", {-1, -32768}, {.start = fivePastTwo});
    EXPECT_EQ(exported(), " 14:05  Mar 15, 24,  -000.1,    -3276.8,  \r\n\r\n");
    recordings.gInfo[0].low = false;
    EXPECT_EQ(exported(), " 14:05  Mar 15, 24, 0000 ,   -3277 ,  \r\n\r\n");
}

TEST_F(CsvExport, SixteenReadingsGiveTwoLinesOfEight) {
    addFile(recordings, "/data/a.dat", ramp(16));
    const auto lines = linesOf(exported());
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1], " 16:00  Mar 15, 24,  000.8,    000.9,    001.0,    001.1,    001.2,    001.3,    "
                        "001.4,    001.5,  ");
    EXPECT_EQ(lines[2], "");
}

TEST_F(CsvExport, SeventeenReadingsGiveAThirdLineWithOne) {
    addFile(recordings, "/data/a.dat", ramp(17));
    const auto lines = linesOf(exported());
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[2], " 18:00  Mar 15, 24,  001.6,  ");
}

TEST_F(CsvExport, ModeDIsAccepted) {
    addFile(recordings, "/data/a.dat", ramp(1), {.letter = 'd'});
    EXPECT_EQ(exported(), " 14:00  Mar 15, 24,  000.0,  \r\n\r\n");
}

TEST_F(CsvExport, EveryOtherModeIsRefusedAndNothingWritten) {
    for (const char letter : std::string("bcefghijkl")) {
        recordings.closeAll();
        addFile(recordings, "/data/a.dat", ramp(9), {.letter = letter});
        const auto refused = write();
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().message(), "only 15 min, avg mode allowed");
        EXPECT_TRUE(files.contents.empty());
    }
}

TEST_F(CsvExport, ARangeGivesReadingsAndTimes) {
    addFile(recordings, "/data/a.dat", ramp(40));
    ASSERT_TRUE(CsvData(recordings, 0, {3, 11}, place));
    EXPECT_EQ(files.contents["/out/Lotusint.csv"],
              " 14:45  Mar 15, 24,  000.3,    000.4,    000.5,    000.6,    000.7,    000.8,    "
              "000.9,    001.0,  \r\n"
              " 16:45  Mar 15, 24,  001.1,  \r\n\r\n");
}

TEST_F(CsvExport, OnlyTheFileOfTheSlotIsWritten) {
    addFile(recordings, "/data/a.dat", ramp(9));
    addFile(recordings, "/data/b.dat", {50}, {.start = fivePastTwo});
    EXPECT_EQ(exported(1), " 14:05  Mar 15, 24,  005.0,  \r\n\r\n");
}

TEST_F(CsvExport, DaysRunOverTheEndsOfMonthYearAndLeapFebruary) {
    const auto secondTime = [this](const CivilTime& start) {
        recordings.closeAll();
        addFile(recordings, "/data/a.dat", ramp(9), {.start = toReadingTime(start)});
        return linesOf(exported()).at(1).substr(0, 19);
    };
    EXPECT_EQ(secondTime({2024, 4, 30, 23, 0}), " 01:00  May 01, 24,");
    EXPECT_EQ(secondTime({2023, 12, 31, 22, 15}), " 00:15  Jan 01, 24,");
    EXPECT_EQ(secondTime({2024, 2, 28, 23, 45}), " 01:45  Feb 29, 24,");
    EXPECT_EQ(secondTime({2024, 2, 29, 23, 45}), " 01:45  Mar 01, 24,");
    EXPECT_EQ(secondTime({2023, 2, 28, 23, 45}), " 01:45  Mar 01, 23,");
    EXPECT_EQ(secondTime({1999, 12, 31, 23, 59}), " 01:59  Jan 01, 00,");
}

TEST_F(CsvExport, WithoutADefaultDirectoryItGoesBesideTheDataFile) {
    place.directory.clear();
    addFile(recordings, "/data/deep/a.dat", ramp(1));
    EXPECT_EQ(write()->text, in("/data/deep", "Lotusint.csv") + " saved OK ");
    EXPECT_TRUE(files.contents.contains("/data/deep/Lotusint.csv"));
}

TEST_F(CsvExport, WithNoFileOpenItSaysSo) {
    for (const int slot : {Recordings::noFile, Recordings::cancelled, 0}) {
        const auto refused = write(slot);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().text, "Error - No file available. Need to open a file.");
    }
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(CsvExport, WhenTheFileCannotBeWrittenTheOldOneStays) {
    addFile(recordings, "/data/a.dat", ramp(9));
    files.contents["/out/Lotusint.csv"] = "old";
    for (const Fault& fault : {fault::diskFull(), fault::permissionDenied(), fault::pathNotFound()}) {
        files.failWrite = fault;
        EXPECT_THROW(write(), Fault);
    }
    EXPECT_EQ(files.contents["/out/Lotusint.csv"], "old");
}

TEST_F(CsvExport, AnOpenDataFileIsNeverReplacedHoweverItsPathIsSpelled) {
    addFile(recordings, "/out/../out/./Lotusint.csv", ramp(9));
    addFile(recordings, "/out/b.dat", ramp(9));
    for (const int slot : {0, 1}) {
        const auto refused = write(slot);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().text, "The export would replace an open data file. Nothing was written.");
    }
    EXPECT_TRUE(files.contents.empty());
}

// The layout built field by field with the number patterns.
std::string plainCsv(const Recordings& recordings) {
    const FileFacts& info = recordings.info(0);
    std::string text;
    for (int i = 0; i < info.count; ++i) {
        if (i % 8 == 0)
            text += std::string(i == 0 ? "" : "\r\n") + " " + screenTime(timeOf(info, i)) + ",";
        text += Format(recordings.reading(0, i) / 10.0, info.low ? "  000.0" : " 0000 ") + ",  ";
    }
    return text + "\r\n";
}

TEST_F(CsvExport, RandomRecordingsComeOutAsThePatternsSay) {
    std::mt19937 random(20240315);
    for (int round = 0; round < 40; ++round) {
        std::vector<std::int16_t> tenths(1 + random() % 300);
        for (auto& value : tenths)
            value = static_cast<std::int16_t>(random() % 3 == 0 ? random() : random() % 5000);
        recordings.closeAll();
        addFile(recordings, "/data/a.dat", tenths,
                {.low = round % 2 == 0, .start = fivePastTwo + round * 100});
        ASSERT_EQ(exported(), plainCsv(recordings) + "\r\n") << "round " << round;
    }
}

} // namespace
} // namespace tally
