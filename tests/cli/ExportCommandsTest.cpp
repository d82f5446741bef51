// SPDX-License-Identifier: GPL-3.0-or-later
// The exports, run as a user's script runs them.
#include "support/Process.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tally {
namespace {

using testing::runProgram;
using testing::TemporaryFolder;

std::string header(char mode, const std::string& time) {
    return std::string("PQX") + mode + "   1234" + std::string(19, ' ') + time + "   Vbatt 3E8\r";
}

class ExportCommands : public ::testing::Test {
protected:
    TemporaryFolder folder;
    // Newest first; reading 0 lies count + 1 intervals before the header time: at 00:00.
    std::string low =
        folder.write("low.dat", header('a', "03-15-24 01:30") + " 50.0 40.0 30.0 20.0 10.5\x1a");
    std::string high = folder.write("high.dat", header('d', "03-15-24 01:30") + "  50  40  30  20  10\x1a");
    std::string triples =
        folder.write("triples.dat", header('g', "03-15-24 01:30") + "  10  30  20  40  60  50\x1a");

    bool exists(const std::string& name) const { return std::filesystem::exists(folder.path(name)); }
};

TEST_F(ExportCommands, CsvWritesTheLowFileBesideItByDefault) {
    const auto run = runProgram("tallyline-cli", {"export", "csv", low});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, folder.path("Lotusint.csv") + " saved OK \n");
    EXPECT_EQ(TemporaryFolder::read(folder.path("Lotusint.csv")),
              " 00:00  Mar 15, 24,  010.5,    020.0,    030.0,    040.0,    050.0,  \r\n\r\n");
}

TEST_F(ExportCommands, CsvWritesARangeOfTheHighFileToAFolder) {
    std::filesystem::create_directory(folder.path("there"));
    const auto run = runProgram(
        "tallyline-cli", {"export", "csv", high, "--dir", folder.path("there"), "--from", "1", "--to", "2"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, folder.path("there/Lotusint.csv") + " saved OK \n");
    EXPECT_EQ(TemporaryFolder::read(folder.path("there/Lotusint.csv")),
              " 00:15  Mar 15, 24, 0020 ,   0030 ,  \r\n\r\n");
}

TEST_F(ExportCommands, CsvRefusesAnotherMode) {
    const auto run = runProgram("tallyline-cli", {"export", "csv", triples});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "only 15 min, avg mode allowed\n");
    EXPECT_FALSE(exists("Lotusint.csv"));
}

TEST_F(ExportCommands, TextWritesTheTableWithItsHeading) {
    const auto run = runProgram("tallyline-cli", {"export", "text", low});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, folder.path("low.prn") + " saved OK\n");
    EXPECT_EQ(TemporaryFolder::read(folder.path("low.prn")),
              " Time     Date                            Eight readings of average\r\n"
              "00:00  Mar 15, 24        010.5    020.0    030.0    040.0    050.0  \r\n\r\n");
}

TEST_F(ExportCommands, TextWritesOneIntervalALine) {
    const auto run = runProgram("tallyline-cli", {"export", "text", low, "--per-line", "--to", "1"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(TemporaryFolder::read(folder.path("low.prn")), "yy mm dd hh mm Reading\r\n"
                                                             "24 03 15 00 00 010.5\r\n"
                                                             "24 03 15 00 15 020.0\r\n\r\n\r\n");
}

TEST_F(ExportCommands, MeteringWritesTheWholeHours) {
    const auto run = runProgram(
        "tallyline-cli", {"export", "metering", low, "--id", "ABC", "--volts", "10000", "--pf", "0.8"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, folder.path("Lotusint.prn") + "  saved OK  \n");
    const std::string padding(157, ' ');
    // The mean of 10.5, 20, 30 and 40 A is 25.125 A: 201 kW at 10 kV and 0.8; 251.25 kVA, 150.75 kVAR.
    EXPECT_EQ(
        TemporaryFolder::read(folder.path("Lotusint.prn")),
        "\"RECORDER ID\",\" DATE\",\" HOUR\",\" IN\",\" UN\",\"     KW\",\"   KVAR\",\"       \",\"       "
        "\"" +
            padding +
            "\r\n\"ABC           \",240315,0100,60,\"   KW\",       201,       151,         251,         0" +
            padding + "\r\n\r\n");
}

TEST_F(ExportCommands, MeteringRefusesWhatItCannotReport) {
    const auto mode = runProgram("tallyline-cli", {"export", "metering", triples, "--id", "ABC"});
    EXPECT_EQ(mode.status, 1);
    EXPECT_EQ(mode.err, "            NOT A VALID MODE    \n   INTERVAL MUST BE 15 MINUTES    \n\n");
    const auto range =
        runProgram("tallyline-cli", {"export", "metering", low, "--id", "ABC", "--from", "1", "--to", "4"});
    EXPECT_EQ(range.status, 1);
    EXPECT_EQ(range.err, "The readings hold no whole hour after a midnight. No report was written.\n");
    const auto quotes = runProgram("tallyline-cli", {"export", "metering", low, "--id", "A\"B"});
    EXPECT_EQ(quotes.status, 1);
    EXPECT_FALSE(exists("Lotusint.prn"));
}

TEST_F(ExportCommands, MeteringRefusesVolts) {
    const std::string volts = folder.write("volts.dat", "PQV" + header('a', "03-15-24 01:30").substr(3) +
                                                            " 50.0 40.0 30.0 20.0 10.5\x1a");
    const auto run = runProgram("tallyline-cli", {"export", "metering", volts, "--id", "ABC"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "Files must all be amps for power to plot\n");
    EXPECT_FALSE(exists("Lotusint.prn"));
}

TEST_F(ExportCommands, AFolderThatIsNotThereIsNamedAsTheCause) {
    const auto run = runProgram("tallyline-cli", {"export", "csv", low, "--dir", folder.path("none")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "Path not found\n" + folder.path("none/Lotusint.csv") +
                           "\nIts folder is not there. Make it, or choose another one.\n");
}

TEST_F(ExportCommands, WrongArgumentsAreWrongUsage) {
    for (const auto& arguments : std::vector<std::vector<std::string>>{{"export"},
                                                                       {"export", "csv"},
                                                                       {"export", "xml", low},
                                                                       {"export", "csv", low, "--from", "9"},
                                                                       {"export", "metering", low}}) {
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 2) << arguments.back();
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("Usage: tallyline-cli export"), std::string::npos) << run.err;
    }
}

} // namespace
} // namespace tally
