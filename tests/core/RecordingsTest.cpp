// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Recordings.h"

#include "core/Fault.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

class Model : public ::testing::Test {
protected:
    void open(char letter, const std::string& path = "/d/a.dat") {
        testing::addFile(recordings, path, testing::ramp(9), {.letter = letter});
    }
    std::string timeAt(int index) {
        recordings.gDateX = index;
        CalcDate(recordings);
        return recordings.gText;
    }
    Recordings recordings;
};

TEST_F(Model, AtStartUpNothingIsOpen) {
    EXPECT_EQ(recordings.ginx, -1);
    EXPECT_EQ(recordings.openCount(), 0);
    EXPECT_EQ(recordings.freeSlot(), 0);
}

TEST_F(Model, CalcDateOfReading0IsTheStart) {
    open('a');
    recordings.gText = "a data text";
    EXPECT_EQ(timeAt(0), "14:00  Mar 15, 24");
}

TEST_F(Model, CalcDateOfMinMaxAvgReadingsOfAnInterval) {
    open('g');
    for (const int index : {0, 1, 2})
        EXPECT_EQ(timeAt(index), "14:00  Mar 15, 24") << index;
    EXPECT_EQ(timeAt(3), "14:15  Mar 15, 24");
    EXPECT_EQ(timeAt(5), "14:15  Mar 15, 24");
    EXPECT_EQ(timeAt(6), "14:30  Mar 15, 24");
}

TEST_F(Model, CalcDateOfOneMinuteAverages) {
    open('f');
    EXPECT_EQ(timeAt(1), "14:01  Mar 15, 24");
    EXPECT_EQ(timeAt(600), "00:00  Mar 16, 24");
}

TEST_F(Model, CalcDateBeforeReading0) {
    open('a');
    EXPECT_EQ(timeAt(-1), "13:45  Mar 15, 24");
    EXPECT_EQ(timeAt(-57), "23:45  Mar 14, 24");
    recordings.closeAll();
    open('j');
    for (const int index : {-1, -2, -3})
        EXPECT_EQ(timeAt(index), "13:45  Mar 15, 24") << index;
    EXPECT_EQ(timeAt(-4), "13:30  Mar 15, 24");
}

TEST_F(Model, CalcDateOfALetterOutsideTheTableIsABoundsError) {
    open('a');
    for (const char letter : {'`', 'n', 'A', ' '}) {
        recordings.gInfo[0].modeLetter = letter;
        try {
            timeAt(0);
            ADD_FAILURE() << letter;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 9);
        }
        EXPECT_EQ(recordings.gText, "");
    }
    recordings.gInfo[0].modeLetter = 'm';
    EXPECT_EQ(timeAt(30), "14:00  Mar 15, 24") << "the empty row: no minutes";
    recordings.ginx = -1;
    EXPECT_THROW(timeAt(0), Fault);
}

class Chooser : public SlotChooser {
public:
    int choose(const Recordings& recordings, int pendingCommand) override {
        ++asked;
        seen = recordings.ginx;
        command = pendingCommand;
        return answer;
    }
    int asked = 0;
    int seen = -9;
    int command = 0;
    int answer = 1;
};

TEST_F(Model, SelectFileWithNoFileIsMinusOne) {
    Chooser chooser;
    recordings.ginx = 2;
    SelectFile(recordings, chooser);
    EXPECT_EQ(recordings.ginx, -1);
    EXPECT_EQ(chooser.asked, 0);
}

TEST_F(Model, SelectFileWithOneFileNeverAsks) {
    Chooser chooser;
    open('a');
    recordings.ginx = -2;
    SelectFile(recordings, chooser);
    EXPECT_EQ(recordings.ginx, 0);
    EXPECT_EQ(chooser.asked, 0);
}

TEST_F(Model, SelectFileWithTwoFilesAsks) {
    Chooser chooser;
    open('a');
    open('a', "/d/b.dat");
    SelectFile(recordings, chooser);
    EXPECT_EQ(recordings.ginx, 1);
    EXPECT_EQ(chooser.asked, 1);
    EXPECT_EQ(chooser.seen, 0) << "0 before the list is filled";
    EXPECT_EQ(chooser.command, pending::chooseOnly);
    chooser.answer = Recordings::cancelled;
    SelectFile(recordings, chooser, pending::table);
    EXPECT_EQ(recordings.ginx, -2);
    EXPECT_EQ(chooser.command, pending::table);
}

TEST_F(Model, AReadingThatAFileDoesNotHaveIsZero) {
    open('a');
    EXPECT_EQ(recordings.reading(0, 8), 8);
    EXPECT_EQ(recordings.reading(0, 9), 0);
    EXPECT_EQ(recordings.reading(0, 42966), 0);
    EXPECT_EQ(recordings.reading(2, 0), 0);
    EXPECT_THROW(recordings.reading(0, 42967), Fault);
    EXPECT_THROW(recordings.reading(0, -1), Fault);
    EXPECT_THROW(recordings.reading(3, 0), Fault);
    EXPECT_THROW(recordings.reading(-1, 0), Fault);
}

TEST(FileName, IsTheLastPartOfAPath) {
    EXPECT_EQ(fileNameOf("/home/x/a.dat"), "a.dat");
    EXPECT_EQ(fileNameOf("C:\\data\\a.dat"), "a.dat");
    EXPECT_EQ(fileNameOf("a.dat"), "a.dat");
}

TEST_F(Model, ClosingFreesEverySlot) {
    open('a');
    open('a', "/d/b.dat");
    EXPECT_EQ(recordings.freeSlot(), 2);
    recordings.gNotes[0][0] = "North";
    recordings.closeAll();
    EXPECT_EQ(recordings.openCount(), 0);
    EXPECT_EQ(recordings.freeSlot(), 0);
    EXPECT_EQ(recordings.ginx, -1);
    EXPECT_EQ(recordings.gNotes[0][0], "");
    EXPECT_TRUE(recordings.gReadings[0].empty());
}

} // namespace
} // namespace tally
