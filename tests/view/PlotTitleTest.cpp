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
    DisplayState state;
    testing::FixedClock clock; // 14:05 on 15 March 2024
};

TEST_F(PlotTitle, OneFileWithEveryLineInOrder) {
    addFile(recordings, "a.dat", {35, 1200, 125}, {.letter = 'd'});
    recordings.gNotes[0] = {"Elm St", "12", "Ann", "x"};
    EXPECT_EQ(titleBlock(recordings, state, clock), "        File Data:   Max  120A  Min  3.5A\r\n"
                                                    "Mode:  Average;     Stop;    15 min interval      \r\n"
                                                    "Date printed   Mar-15-24\r\n"
                                                    "Location: Elm St\r\n"
                                                    "Circuit:     12\r\n"
                                                    "Name:     Ann\r\n"
                                                    "Other:      x");
}

TEST_F(PlotTitle, VoltageFileHasTheUnitV) {
    addFile(recordings, "v.dat", {1205}, {.letter = 'b', .type = 'V'});
    const std::string title = titleBlock(recordings, state, clock);
    EXPECT_TRUE(title.starts_with("        File Data:   Max  120.5V  Min  120.5V\r\n"
                                  "Mode:  Average;     Cont;    5 min interval      \r\n"));
}

TEST_F(PlotTitle, MinMaxAvgMode) {
    addFile(recordings, "i.dat", {1, 2, 3}, {.letter = 'l'});
    EXPECT_NE(titleBlock(recordings, state, clock)
                  .find("\r\nMode:  Min/Max/Avg ;     Stop;    1 min interval      \r\n"),
              std::string::npos);
}

TEST_F(PlotTitle, SeveralFilesHaveNoFileDataAndTheNotesOfEach) {
    addFile(recordings, "a.dat", {1});
    addFile(recordings, "b.dat", {2});
    recordings.gNotes[0][0] = "first";
    recordings.gNotes[1][0] = "second";
    EXPECT_EQ(titleBlock(recordings, state, clock), "         File Data:  N/A              \r\n"
                                                    "Mode:  Average;     Cont;    15 min interval      \r\n"
                                                    "Date printed   Mar-15-24\r\n"
                                                    "Location: first\r\nCircuit:     \r\nName:     \r\n"
                                                    "Other:      \r\n"
                                                    "Location: second\r\nCircuit:     \r\nName:     \r\n"
                                                    "Other:      ");
}

TEST_F(PlotTitle, MarkedSpanIsTheLastLine) {
    addFile(recordings, "a.dat", {1});
    state.spanSelected = true;
    state.spanStartTime = toReadingTime({2024, 3, 15, 14, 30});
    state.spanEndTime = toReadingTime({2024, 3, 16, 9, 5});
    EXPECT_TRUE(titleBlock(recordings, state, clock)
                    .ends_with("\r\nSelected:   14:30  Mar 15, 24   to   09:05  Mar 16, 24"));
}

TEST_F(PlotTitle, NamesOfTheOpenFiles) {
    addFile(recordings, "/x/a.dat", {1});
    EXPECT_EQ(openNames(recordings), "a.dat");
    addFile(recordings, "/y/b.dat", {1});
    EXPECT_EQ(openNames(recordings), "a.dat, b.dat");
}

TEST_F(PlotTitle, ShorterFilesAreNamed) {
    addFile(recordings, "/x/a.dat", testing::ramp(7));
    addFile(recordings, "/x/b.dat", testing::ramp(7));
    EXPECT_EQ(shorterFiles(recordings), "");
    addFile(recordings, "/x/c.dat", testing::ramp(9));
    EXPECT_EQ(shorterFiles(recordings), "Shorter: a.dat (7 of 9 readings), b.dat (7 of 9 readings)");
}

} // namespace
} // namespace tally
