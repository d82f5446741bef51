// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotTitle.h"

#include "support/FixedClock.h"
#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;

class PlotTitle : public ::testing::Test {
protected:
    Recordings recordings;
    testing::FixedClock clock; // 14:05 on 15 March 2024
};

TEST_F(PlotTitle, OneFileWithEveryLineInOrder) {
    addFile(recordings, "a.dat", {35, 1200, 125}, {.letter = 'd'});
    recordings.gNotes[0] = {"Elm St", "12", "Ann", "x"};
    EXPECT_EQ(titleBlock(recordings, {}, clock), "        File Data:   Max  120A  Min  3.5A\r\n"
                                                 "Mode:  Average;     Stop;    15 min interval      \r\n"
                                                 "Date printed   Mar-15-24\r\n"
                                                 "Location: Elm St\r\n"
                                                 "Circuit:     12\r\n"
                                                 "Name:     Ann\r\n"
                                                 "Other:      x");
}

TEST_F(PlotTitle, VoltageFileHasTheUnitV) {
    addFile(recordings, "v.dat", {1205}, {.letter = 'b', .type = 'V'});
    const std::string title = titleBlock(recordings, {}, clock);
    EXPECT_TRUE(title.starts_with("        File Data:   Max  120.5V  Min  120.5V\r\n"
                                  "Mode:  Average;     Cont;    5 min interval      \r\n"));
}

TEST_F(PlotTitle, MinMaxAvgMode) {
    addFile(recordings, "i.dat", {1, 2, 3}, {.letter = 'l'});
    EXPECT_NE(titleBlock(recordings, {}, clock)
                  .find("\r\nMode:  Min/Max/Avg ;     Stop;    1 min interval      \r\n"),
              std::string::npos);
}

TEST_F(PlotTitle, SeveralFilesHaveNoFileDataAndTheNotesOfEach) {
    addFile(recordings, "a.dat", {1});
    addFile(recordings, "b.dat", {2});
    recordings.gNotes[0][0] = "first";
    recordings.gNotes[1][0] = "second";
    EXPECT_EQ(titleBlock(recordings, {}, clock), "         File Data:  N/A              \r\n"
                                                 "Mode:  Average;     Cont;    15 min interval      \r\n"
                                                 "Date printed   Mar-15-24\r\n"
                                                 "Location: first\r\nCircuit:     \r\nName:     \r\n"
                                                 "Other:      \r\n"
                                                 "Location: second\r\nCircuit:     \r\nName:     \r\n"
                                                 "Other:      ");
}

TEST_F(PlotTitle, MarkedSpanIsTheLastLine) {
    addFile(recordings, "a.dat", testing::ramp(100));
    EXPECT_TRUE(titleBlock(recordings, Range{2, 77}, clock)
                    .ends_with("\r\nSelected:   14:30  Mar 15, 24   to   09:15  Mar 16, 24"));
}

} // namespace
} // namespace tally
