// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SaveText.h"

#include "core/Fault.h"
#include "core/Fileopen.h"
#include "core/Numbers.h"
#include "support/DataTexts.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::dataFile;
using testing::headerLine;
using Readings = std::vector<std::int16_t>;

class Saving : public ::testing::Test {
protected:
    void open(const std::string& bytes, const std::string& path = "/d/a.dat") {
        files.contents[path] = bytes;
        ASSERT_TRUE(Fileopen(recordings, files, path));
    }
    // What is saved from now on; the whole file before it is called.
    void range(int first, int last) { wanted = Range{first, last}; }
    std::string built() {
        const int slot = recordings.ginx;
        return buildDataText(recordings, slot, wanted ? *wanted : recordings.all(slot));
    }
    // What opening a saved text gives.
    Recordings reopened() {
        Recordings fresh;
        files.contents["/d/saved.dat"] = tally::quoted(built());
        EXPECT_TRUE(Fileopen(fresh, files, "/d/saved.dat"));
        return fresh;
    }

    Recordings recordings;
    std::optional<Range> wanted;
    testing::MemoryFiles files;
};

TEST_F(Saving, WritesTheBytesOfAHighFile) {
    open(dataFile(
        {'a', "03-15-99 10:30"},
        testing::fieldLines({"12", "13", "14", "15", "16", "17", "18", "19", "20", "21", "1234", "7"}, 4)));
    // The newest reading is two intervals before the header time.
    EXPECT_EQ(built(), "\r\n\n\n" + headerLine({'a', "03-15-99 10:00"}) +
                           "\r  12  13  14  15  16  17  18  19  20  21\n\r1234   7\x1a");
}

TEST_F(Saving, WritesTheBytesOfALowFile) {
    open(dataFile({'b', "03-15-99 10:30"}, " 12.5100.0  0.3"));
    EXPECT_EQ(built(), "\r\n\n\n" + headerLine({'b', "03-15-99 10:20"}) + "\r 12.5100.0  0.3\x1a");
}

TEST_F(Saving, WritesTheTokenOfAFormTFile) {
    open(dataFile({'a', "03-15-99 10:30"}, "T:  12  13"));
    EXPECT_EQ(built(), "\r\n\n\n" + headerLine({'a', "03-15-99 10:15"}) + "\rT:   12  13\x1a");
}

TEST_F(Saving, OnDiskTheTextIsOneQuotedItem) {
    EXPECT_EQ(tally::quoted("\r\n\n\nH\r   1\x1a"), "\"\r\n\n\nH\r   1\x1a\"\r\n");
}

TEST_F(Saving, TenValuesEndNoLineOfTheirOwn) {
    open(dataFile({}, "   1   2   3   4   5   6   7   8   9  10"));
    const std::string text = built();
    EXPECT_TRUE(text.ends_with("  10\x1a"));
    EXPECT_EQ(text.find("\n\r"), std::string::npos);
}

TEST_F(Saving, ARangeWritesOnlyItsReadingsAndTheTimeOfItsNewest) {
    // Oldest first 40 30 20 10; reading 0 is at 09:15, reading 2 at 09:45.
    open(dataFile({'a', "03-15-99 10:30"}, "  10  20  30  40"));
    range(1, 2);
    EXPECT_EQ(built(), "\r\n\n\n" + headerLine({'a', "03-15-99 09:45"}) + "\r  20  30\x1a");
}

TEST_F(Saving, ASavedFileReadBackYieldsTheSameReadings) {
    for (const char* readings : {"  12  13\n\r  14", "T:   12  13", "3276   1"}) {
        recordings.closeAll();
        open(dataFile({}, readings));
        EXPECT_EQ(reopened().gReadings[0], recordings.gReadings[0]) << readings;
    }
    recordings.closeAll();
    open(dataFile({}, " 12.5100.1999.9  0.0"));
    EXPECT_EQ(reopened().gReadings[0], recordings.gReadings[0]);
}

TEST_F(Saving, AHighFileIsRoundedToWholeUnits) {
    open(dataFile({}, "  12\n\r 1.5 2.4 -0.4 -1.5"));
    EXPECT_EQ(reopened().gReadings[0], (Readings{-20, 0, 20, 20, 120})) << "halves away from zero";
}

TEST_F(Saving, FieldsAreThoseOfThePatterns) {
    for (const bool low : {false, true}) {
        open(dataFile({}, low ? " 1.0" : "   1"));
        const std::string empty = built();
        for (int tenths : {0, 4, 5, 14, 15, 99, 100, 9994, 9995, 32764, -4, -5, -15, -32764}) {
            recordings.gReadings[0] = {static_cast<std::int16_t>(tenths)};
            std::string field = Format(tenths / 10.0, low ? "##0.0" : "###0");
            const std::size_t width = low ? 5 : 4;
            if (field.size() < width)
                field.insert(0, width - field.size(), ' ');
            const std::string expected = empty.substr(0, empty.size() - width - 1) + field + "\x1a";
            EXPECT_EQ(built(), expected);
        }
        recordings.closeAll();
    }
}

// 3276.7 is the largest reading there is; 3277 would be none.
TEST_F(Saving, WhatWouldBeRoundedBeyondAReadingIsWrittenAsTheLargestWholeOne) {
    open(dataFile({}, "   1   2"));
    recordings.gReadings[0] = {32767, -32768};
    EXPECT_TRUE(built().ends_with("\r-32763276\x1a"));
    EXPECT_EQ(reopened().gReadings[0], (Readings{32760, -32760}));
    recordings.gInfo[0].low = true;
    EXPECT_EQ(reopened().gReadings[0], (Readings{32767, -32768}));
}

TEST_F(Saving, NegativeNumbersOfFourAndMoreCharactersAreReadBack) {
    open(dataFile({}, "   1"));
    const Readings readings = {-1000, -9990, 120,    -10000, 12340, -32760, -10,
                               0,     -1000, -10000, -500,   10000, 0};
    recordings.gReadings[0] = readings;
    recordings.gInfo[0].count = static_cast<int>(readings.size());
    range(0, static_cast<int>(readings.size()) - 1);
    const Recordings again = reopened();
    EXPECT_EQ(again.gReadings[0], readings);
    EXPECT_EQ(again.gInfo[0].unreadable, 0);
}

// Every pair of neighbours that a HIGH file can hold at the borders of the field's width.
TEST_F(Saving, AnyTwoNeighboursAreReadBack) {
    open(dataFile({}, "   1   1   1"));
    const Readings kinds = {0,   10,  90,   100,  990,   1000,  9990,   10000, 32760,
                            -10, -90, -100, -990, -1000, -9990, -10000, -32760};
    for (const std::int16_t first : kinds)
        for (const std::int16_t second : kinds)
            for (const std::int16_t third : kinds) {
                recordings.gReadings[0] = {first, second, third};
                ASSERT_EQ(reopened().gReadings[0], recordings.gReadings[0])
                    << first << " " << second << " " << third;
            }
}

TEST_F(Saving, NumbersThatTouchInASavedFileAreReadBack) {
    open(dataFile({}, " 999 100"));
    recordings.gReadings[0] = {12340, 9990, 10000, 32760};
    recordings.gInfo[0].count = 4;
    range(0, 3);
    EXPECT_EQ(reopened().gReadings[0], recordings.gReadings[0]);
    recordings.gInfo[0].low = true;
    recordings.gReadings[0] = {9999, 1000, 1001, 10005};
    EXPECT_EQ(reopened().gReadings[0], recordings.gReadings[0]);
}

TEST_F(Saving, AFileSavedAgainShowsTimesTwoIntervalsEarlier) {
    open(dataFile({'a', "03-15-99 10:30"}, "  12  13  14"));
    EXPECT_EQ(screenTime(recordings.gInfo[0].start), "09:30  Mar 15, 99");
    EXPECT_EQ(screenTime(reopened().gInfo[0].start), "09:00  Mar 15, 99");
}

TEST_F(Saving, AFormTFileSavedAgainShowsTimesOneIntervalEarlier) {
    open(dataFile({'a', "03-15-99 10:30"}, "T:  12  13  14"));
    EXPECT_EQ(screenTime(recordings.gInfo[0].start), "09:45  Mar 15, 99");
    EXPECT_EQ(screenTime(reopened().gInfo[0].start), "09:30  Mar 15, 99");
}

TEST_F(Saving, RangesOfMinMaxAvgFilesAreWholeTriples) {
    open(dataFile({'g'}, "   1   3   2   4   6   5   7   9   8"));
    ASSERT_EQ(recordings.gReadings[0], (Readings{80, 90, 70, 50, 60, 40, 20, 30, 10}));
    range(4, 4);
    EXPECT_EQ(reopened().gReadings[0], (Readings{50, 60, 40}));
    range(2, 3);
    EXPECT_EQ(reopened().gReadings[0], (Readings{80, 90, 70, 50, 60, 40}));
    range(0, 8);
    EXPECT_EQ(reopened().gReadings[0], recordings.gReadings[0]);
}

TEST_F(Saving, TriplesAreCountedFromTheNewestReading) {
    open(dataFile({'g'}, "   1   3   2   4   6   5   7   9"));
    ASSERT_EQ(recordings.gReadings[0], (Readings{90, 70, 50, 60, 40, 20, 30, 10}));
    range(3, 3);
    EXPECT_EQ(reopened().gReadings[0], (Readings{50, 60, 40}));
    range(1, 3);
    EXPECT_EQ(reopened().gReadings[0], (Readings{90, 70, 50, 60, 40})) << "what is over goes along";
    range(0, 7);
    EXPECT_EQ(reopened().gReadings[0], recordings.gReadings[0]);
}

TEST_F(Saving, ARangeBeyondTheLastReadingIsCutToIt) {
    open(dataFile({}, "  10  20  30"));
    range(1, 500);
    EXPECT_EQ(reopened().gReadings[0], (Readings{200, 100}));
}

TEST_F(Saving, WithoutAFileOrReadingsItIsAFault) {
    EXPECT_THROW(built(), Fault);
    open(dataFile({}, "  10  20  30"));
    range(2, 1);
    EXPECT_THROW(built(), Fault);
    range(3, 500);
    EXPECT_THROW(built(), Fault);
    recordings.gText = "kept";
    EXPECT_THROW(buildText(recordings, 0, *wanted), Fault);
    EXPECT_EQ(recordings.gText, "kept");
}

TEST_F(Saving, ForcedReadingsAreWrittenLikeOthers) {
    open(dataFile({}, "  10  20  30"));
    recordings.gReadings[0][1] = 0;
    EXPECT_EQ(reopened().gReadings[0], (Readings{300, 0, 100}));
}

TEST_F(Saving, TheTextIsLeftInGText) {
    open(dataFile({}, "  10  20  30"));
    buildText(recordings, 0, recordings.all(0));
    EXPECT_EQ(recordings.gText, built());
    EXPECT_EQ(recordings.gDateX, 2);
}

TEST_F(Saving, TheHeaderOfTheOlderLayoutIsWrittenBackRepaired) {
    const std::string older =
        headerLine({'a', "99-99-99 99:99"}).substr(0, 44) + "  03-15-99 10:30 6.12 rest";
    open(older + "\r  12  13\x1a");
    std::string expected = older;
    expected.replace(30, 14, "03-15-99 10:00");
    EXPECT_EQ(built(), "\r\n\n\n" + expected + "\r  12  13\x1a");
}

} // namespace
} // namespace tally
