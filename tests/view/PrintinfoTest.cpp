// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printinfo.h"

#include "core/Fault.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;

class Summary : public ::testing::Test {
protected:
    Recordings recordings;
};

TEST_F(Summary, ASlotWithoutAFileIsASubscriptFault) {
    for (const int slot : {Recordings::cancelled, 0, 3})
        EXPECT_THROW(Printinfo(recordings, slot), Fault);
}

TEST_F(Summary, OfAnAverageFile) {
    addFile(recordings, "/x/a.dat", {35, 1200, 125}, {.letter = 'd'});
    recordings.gNotes[0] = {"Elm St", "12", "Ann", "x"};
    EXPECT_EQ(Printinfo(recordings, 0),
              "Average          Values                     \r\n"
              "    File:     /x/a.dat             Ser. A123\r\n"
              "     Mode:  Stop  15 min interval                    Range  LOW\r\n"
              "    Entire File:  Start:  14:00  Mar 15, 24    End:  14:30  Mar 15, 24\r\n"
              "                       Min: 3.5     Max: 120\r\n"
              "Loc:    Elm St\r\n"
              "Name: Ann\r\n"
              "Circ:    12\r\n"
              "Other: x\r\n");
}

TEST_F(Summary, OfATripleFileInTheHighRange) {
    addFile(recordings, "g.dat", {10, 20, 0, 30, 40, 10}, {.letter = 'h', .low = false});
    const std::string text = Printinfo(recordings, 0);
    EXPECT_TRUE(text.starts_with("Min/Max/Avg      Values                     \r\n"));
    EXPECT_NE(text.find("     Mode:  Cont  5 min interval                    Range  HIGH\r\n"),
              std::string::npos);
    EXPECT_NE(text.find("End:  14:05  Mar 15, 24\r\n"), std::string::npos);
}

TEST_F(Summary, EnergyLineOnlyAfterAPowerPlot) {
    addFile(recordings, "a.dat", {10});
    EXPECT_EQ(Printinfo(recordings, 0).find("Total Energy"), std::string::npos);
    EXPECT_NE(Printinfo(recordings, 0, {}, "12,345 KWHR")
                  .find("Max: 1\r\n                   Total Energy In Displayed Area  12,345 KWHR\r\nLoc:"),
              std::string::npos);
}

TEST_F(Summary, SelectedBlockOnlyWithASelection) {
    addFile(recordings, "a.dat", testing::ramp(20));
    recordings.gReadings[0][4] = 12345;
    EXPECT_EQ(Printinfo(recordings, 0).find("Selected"), std::string::npos);
    EXPECT_NE(
        Printinfo(recordings, 0, Range{2, 6})
            .find("           Selected:       Start  14:30  Mar 15, 24                   Finish  15:30  "
                  "Mar 15, 24\r\n"
                  "                                   Min      0.2           "
                  "                                 max       1234.5\r\n"),
        std::string::npos);
}

TEST_F(Summary, SelectionIsCutToAShorterFileAndItsExtremesAreOfAllFiles) {
    addFile(recordings, "a.dat", testing::ramp(20));
    addFile(recordings, "b.dat", testing::constant(4, 500));
    const std::string text = Printinfo(recordings, 1, Range{2, 6});
    EXPECT_NE(text.find("Start  14:30  Mar 15, 24                   Finish  14:45  Mar 15, 24\r\n"),
              std::string::npos);
    EXPECT_NE(text.find("max       50.0\r\n"), std::string::npos);
}

TEST_F(Summary, LastSelectedTripleHasTheTimeOfItsInterval) {
    addFile(recordings, "g.dat", testing::ramp(30), {.letter = 'g'});
    EXPECT_NE(Printinfo(recordings, 0, Range{6, 14})
                  .find("Start  14:30  Mar 15, 24                   Finish  15:00  Mar 15, 24\r\n"),
              std::string::npos);
}

TEST_F(Summary, AFileIsChosenByItsSlot) {
    addFile(recordings, "a.dat", {10});
    addFile(recordings, "b.dat", {20});
    EXPECT_NE(Printinfo(recordings, 0).find("    File:     a.dat             Ser. A123"), std::string::npos);
    EXPECT_NE(Printinfo(recordings, 1).find("    File:     b.dat             Ser. A123"), std::string::npos);
}

TEST_F(Summary, SerialNumberIsTurnedFromBytesIntoText) {
    addFile(recordings, "a.dat", {10});
    recordings.gInfo[0].serial = "\xC4"
                                 "12 ";
    EXPECT_NE(Printinfo(recordings, 0)
                  .find("Ser. \xC3\x84"
                        "12 \r\n"),
              std::string::npos);
}

// The blanks and the full stops differ on purpose.
TEST_F(Summary, TextsWithNoFile) {
    EXPECT_EQ(noFileForSummary, "Error - No file available. Need to open a file.");
    EXPECT_EQ(noFileForPrintSummary, "Error - No file available.  Need to open a file.");
}

} // namespace
} // namespace tally
