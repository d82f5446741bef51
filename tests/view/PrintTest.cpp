// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Print.h"

#include "core/Fault.h"
#include "support/SampleFile.h"
#include "view/Range.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::ramp;

class PrintTable : public ::testing::Test {
protected:
    Recordings recordings;
    Table table;

    std::string print(int slot = 0) { return print(slot, wholeFile(recordings, slot)); }
    std::string print(int slot, const Range& range) {
        table = Print(recordings, slot, range);
        return table.heading;
    }

    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        std::size_t from = 0;
        for (auto at = table.text.find("\r\n"); at != std::string::npos; at = table.text.find("\r\n", from)) {
            all.push_back(table.text.substr(from, at - from));
            from = at + 2;
        }
        EXPECT_EQ(from, table.text.size());
        return all;
    }
};

TEST_F(PrintTable, ASlotWithoutAFileIsASubscriptFault) {
    EXPECT_THROW(Print(recordings, 0, {}), Fault);
    addFile(recordings, "a.dat", ramp(3));
    for (const int slot : {Recordings::cancelled, Recordings::noFile, 1, 3})
        EXPECT_THROW(Print(recordings, slot, {0, 2}), Fault);
}

TEST_F(PrintTable, FifteenMinuteAveragesStandEightInALine) {
    for (const char letter : {'a', 'd'}) {
        recordings.closeAll();
        addFile(recordings, "a.dat", ramp(10), {.letter = letter});
        EXPECT_EQ(print(), " Time     Date                            Eight readings of average");
        EXPECT_EQ(lines(), (std::vector<std::string>{
                               "14:00  Mar 15, 24        000.0    000.1    000.2    000.3    000.4    000.5  "
                               "  000.6    000.7  ",
                               "16:00  Mar 15, 24        000.8    000.9  "}));
    }
}

TEST_F(PrintTable, FiveMinuteAveragesStandSixInALine) {
    for (const char letter : {'b', 'e'}) {
        recordings.closeAll();
        addFile(recordings, "b.dat", ramp(7, 100), {.letter = letter});
        EXPECT_EQ(print(), " Time     Date                             Six readings of average");
        EXPECT_EQ(lines(), (std::vector<std::string>{
                               "14:00  Mar 15, 24           000.0         010.0         020.0         030.0  "
                               "       040.0         050.0    ",
                               "14:30  Mar 15, 24           060.0    "}));
    }
}

TEST_F(PrintTable, OneMinuteAveragesStandTenInALine) {
    for (const char letter : {'c', 'f'}) {
        recordings.closeAll();
        addFile(recordings, "c.dat", ramp(11), {.letter = letter});
        EXPECT_EQ(print(), " Time     Date                             Ten readings of average");
        EXPECT_EQ(lines(), (std::vector<std::string>{"14:00  Mar 15, 24      000.0  000.1  000.2  000.3  "
                                                     "000.4  000.5  000.6  000.7  000.8  000.9  ",
                                                     "14:10  Mar 15, 24      001.0  "}));
    }
}

TEST_F(PrintTable, TriplesStandTwoReadingsInALine) {
    const struct {
        const char* letters;
        const char* second;
    } cases[] = {{"gj", "14:30"}, {"hk", "14:10"}, {"il", "14:02"}};
    for (const auto& expected : cases) {
        for (const char letter : std::string(expected.letters)) {
            recordings.closeAll();
            addFile(recordings, "g.dat", ramp(9), {.letter = letter});
            EXPECT_EQ(print(),
                      " Time     Date                 Avg          Max           Min           Avg       "
                      "     Max           Min");
            EXPECT_EQ(lines(), (std::vector<std::string>{
                                   "14:00  Mar 15, 24           000.0        000.1        000.2        "
                                   "000.3        000.4        000.5   ",
                                   std::string(expected.second) +
                                       "  Mar 15, 24           000.6        000.7        000.8   "}));
        }
    }
}

TEST_F(PrintTable, HighRangeIsPrintedInWholeNumbers) {
    addFile(recordings, "f.dat", {1234, 50}, {.letter = 'f', .low = false});
    print();
    EXPECT_EQ(table.text, "14:00  Mar 15, 24         123     005  \r\n");
    recordings.closeAll();
    addFile(recordings, "a.dat", {1234}, {.letter = 'a', .low = false});
    print();
    EXPECT_EQ(table.text, "14:00  Mar 15, 24          123   \r\n");
    recordings.closeAll();
    addFile(recordings, "b.dat", {1234}, {.letter = 'b', .low = false});
    print();
    EXPECT_EQ(table.text, "14:00  Mar 15, 24             123    \r\n");
    recordings.closeAll();
    addFile(recordings, "g.dat", {1234, 1, 2}, {.letter = 'g', .low = false});
    print();
    EXPECT_EQ(table.text, "14:00  Mar 15, 24             123           000           000    \r\n");
}

TEST_F(PrintTable, ARangeLimitsTheTable) {
    addFile(recordings, "a.dat", ramp(100));
    print(0, {4, 12});
    EXPECT_EQ(lines(), (std::vector<std::string>{
                           "15:00  Mar 15, 24        000.4    000.5    000.6    000.7    000.8    000.9    "
                           "001.0    001.1  ",
                           "17:00  Mar 15, 24        001.2  "}));
}

TEST_F(PrintTable, AFileIsChosenByItsSlot) {
    addFile(recordings, "a.dat", {10});
    addFile(recordings, "b.dat", {20, 30});
    print(1);
    EXPECT_EQ(table.text, "14:00  Mar 15, 24        002.0    003.0  \r\n");
    print(0);
    EXPECT_EQ(table.text, "14:00  Mar 15, 24        001.0  \r\n");
}

TEST_F(PrintTable, OddOldestEntriesOfTriplesAreLeftOut) {
    addFile(recordings, "g.dat", {999, 100, 150, 50}, {.letter = 'g'});
    print();
    EXPECT_EQ(table.text, "14:15  Mar 15, 24           010.0        015.0        005.0   \r\n");
}

TEST_F(PrintTable, LongestFileIsPrintedWhole) {
    addFile(recordings, "a.dat", testing::constant(Recordings::maximumReadings, 100));
    print();
    // 5,370 full lines of 23 + 8 x 9 + 2 characters and one of six values.
    EXPECT_EQ(table.text.size(), 5370U * 97U + 23U + 6U * 9U + 2U);
}

TEST_F(PrintTable, TextWithNoFile) {
    EXPECT_EQ(noFileForTable, "Error - No file available. Need to open a file");
}

} // namespace
} // namespace tally
