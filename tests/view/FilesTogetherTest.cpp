// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FilesTogether.h"

#include "support/SampleFile.h"

#include <gtest/gtest.h>

namespace tally {
namespace {

using testing::addFile;
using testing::ramp;

TEST(FilesTogether, NamesOfTheOpenFiles) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", {1});
    EXPECT_EQ(openNames(recordings), "a.dat");
    addFile(recordings, "/y/b.dat", {1});
    EXPECT_EQ(openNames(recordings), "a.dat, b.dat");
}

TEST(FilesTogether, ShorterFilesAreNamed) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", ramp(7));
    addFile(recordings, "/x/b.dat", ramp(7));
    EXPECT_EQ(shorterFiles(recordings), "");
    addFile(recordings, "/x/c.dat", ramp(9));
    EXPECT_EQ(shorterFiles(recordings), "Shorter: a.dat (7 of 9 readings), b.dat (7 of 9 readings)");
}

TEST(FilesTogether, FilesOfOneStartAndUnitNeedNoWord) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", ramp(7));
    EXPECT_TRUE(togetherWarnings(recordings).empty());
    addFile(recordings, "/x/b.dat", ramp(9));
    EXPECT_TRUE(togetherWarnings(recordings).empty());
}

TEST(FilesTogether, AFileThatStartsAtAnotherTimeIsNamed) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", ramp(7));
    addFile(recordings, "/x/b.dat", ramp(7), {.start = toReadingTime({2024, 3, 16, 16, 0})});
    addFile(recordings, "/x/c.dat", ramp(7), {.start = toReadingTime({2024, 3, 15, 13, 45})});
    EXPECT_EQ(togetherWarnings(recordings),
              (std::vector<std::string>{
                  "b.dat starts 26 h after a.dat; readings are combined by number, not by time",
                  "c.dat starts 15 min before a.dat; readings are combined by number, not by time"}));
}

TEST(FilesTogether, TriplesAreHeldSideBySideFromTheFirstWholeOne) {
    Recordings recordings;
    addFile(recordings, "g.dat", ramp(9), {.letter = 'g'});
    // One reading over: its first triple begins an interval after its start.
    addFile(recordings, "h.dat", ramp(10), {.letter = 'g', .start = toReadingTime({2024, 3, 15, 13, 45})});
    EXPECT_TRUE(togetherWarnings(recordings).empty());
}

TEST(FilesTogether, FilesOfAnotherUnitAreNamed) {
    Recordings recordings;
    addFile(recordings, "/x/a.dat", ramp(7));
    addFile(recordings, "/x/v.dat", ramp(7), {.type = 'V'});
    EXPECT_EQ(togetherWarnings(recordings),
              std::vector<std::string>{"Different units: a.dat is in amps, v.dat in volts"});
}

TEST(FilesTogether, TheRemarkHoldsAllOfItOnOneLine) {
    Recordings recordings;
    addFile(recordings, "a.dat", ramp(7));
    addFile(recordings, "v.dat", ramp(5), {.type = 'V'});
    EXPECT_EQ(togetherRemark(recordings),
              "Shorter: v.dat (5 of 7 readings); Different units: a.dat is in amps, v.dat in volts");
}

} // namespace
} // namespace tally
