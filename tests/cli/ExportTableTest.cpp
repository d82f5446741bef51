// SPDX-License-Identifier: GPL-3.0-or-later
// Tables, load shapes and players, run as a user's script runs them.
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

class ExportTable : public ::testing::Test {
protected:
    TemporaryFolder folder;
    // Newest first; reading 0 lies count + 1 intervals before the header time: at 00:00.
    std::string low =
        folder.write("low.dat", header('a', "03-15-24 01:30") + " 50.0 40.0 30.0 20.0 10.5\x1a");
    // The same an interval later: from 00:15.
    std::string later = folder.write("later.dat", header('a', "03-15-24 01:45") + " 5.0 4.0 3.0 2.0 1.0\x1a");

    bool exists(const std::string& name) const { return std::filesystem::exists(folder.path(name)); }
    std::string content(const std::string& name) const { return TemporaryFolder::read(folder.path(name)); }
};

TEST_F(ExportTable, FilesStandOnTheirCommonTimeAxis) {
    const auto run =
        runProgram("tallyline-cli", {"export", "table", low, later, "-o", folder.path("t.csv"), "--to", "2"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, folder.path("t.csv") + " saved OK\n");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(content("t.csv"),
              "Time,low.dat,later.dat\r\n2024-03-15 00:15,20.0,1.0\r\n2024-03-15 00:30,30.0,2.0\r\n");
}

TEST_F(ExportTable, ADecimalCommaTakesTheSemicolonWithIt) {
    const auto run = runProgram("tallyline-cli", {"export", "table", low, "-o", folder.path("t.CSV"), "--to",
                                                  "0", "--decimal", "comma", "--time", "shown"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(content("t.CSV"), "Time;low.dat\r\n00:00  Mar 15, 24;10,5\r\n");
}

TEST_F(ExportTable, AWorkbookIsAnArchiveOfItsParts) {
    const auto run = runProgram("tallyline-cli", {"export", "table", low, "-o", folder.path("t.xlsx")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(content("t.xlsx").substr(0, 4), "PK\x03\x04");
}

TEST_F(ExportTable, AReplacedFileIsTold) {
    folder.write("t.csv", "old");
    const auto table = runProgram("tallyline-cli", {"export", "table", low, "-o", folder.path("t.csv")});
    EXPECT_EQ(table.err, folder.path("t.csv") + " was replaced\n");
    folder.write("Lotusint.csv", "old");
    const auto csv = runProgram("tallyline-cli", {"export", "csv", low});
    EXPECT_EQ(csv.out, folder.path("Lotusint.csv") + " saved OK \n");
    EXPECT_EQ(csv.err, folder.path("Lotusint.csv") + " was replaced\n");
    folder.write("Lotusint.prn", "old");
    const auto metering =
        runProgram("tallyline-cli", {"export", "metering", low, "--id", "A", "--volts", "13800"});
    EXPECT_EQ(metering.status, 0);
    EXPECT_EQ(metering.err, folder.path("Lotusint.prn") + " was replaced\n");
}

TEST_F(ExportTable, RefusalsWriteNothing) {
    const std::string volts = folder.write("volts.dat", "PQV" + header('a', "03-15-24 01:30").substr(3) +
                                                            " 50.0 40.0 30.0 20.0 10.5\x1a");
    const auto units =
        runProgram("tallyline-cli", {"export", "table", low, volts, "-o", folder.path("t.csv")});
    EXPECT_EQ(units.status, 1);
    EXPECT_EQ(units.out, "");
    EXPECT_EQ(units.err.find("The files are not all of one unit\n"), 0U) << units.err;
    EXPECT_FALSE(exists("t.csv"));
    const std::string named = folder.write("data.csv", TemporaryFolder::read(low));
    const auto own = runProgram("tallyline-cli", {"export", "table", named, "-o", named});
    EXPECT_EQ(own.status, 1);
    EXPECT_EQ(own.err, "The export would replace an open data file. Nothing was written.\n");
    EXPECT_EQ(TemporaryFolder::read(named), TemporaryFolder::read(low));
}

TEST_F(ExportTable, WrongArgumentsAreWrongUsage) {
    const std::string to = folder.path("t.csv");
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"export", "table", low},
             {"export", "table", low, "-o", folder.path("t.txt")},
             {"export", "table", low, "-o", to, "--separator", "pipe"},
             {"export", "table", low, "-o", to, "--decimal", "dot"},
             {"export", "table", low, "-o", to, "--time", "us"},
             {"export", "table", low, "-o", to, "--from", "3", "--to", "1"},
             {"export", "table", low, low, low, low, "-o", to},
             {"export", "opendss", low, "-o", folder.path("s.txt")},
             {"export", "gridlabd", low, later, "-o", folder.path("p.player")}}) {
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 2) << arguments[1] << " " << arguments.back();
        EXPECT_NE(run.err.find("Usage: tallyline-cli export"), std::string::npos) << run.err;
    }
    EXPECT_FALSE(exists("t.csv"));
}

TEST_F(ExportTable, LoadshapesStandInAScriptAndACsvAFile) {
    const auto run = runProgram("tallyline-cli",
                                {"export", "opendss", low, later, low, later, "-o", folder.path("all.dss")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(content("all-later.csv"), "0.2\n0.4\n0.6\n0.8\n1\n");
    EXPECT_NE(content("all.dss").find("New Loadshape.low npts=5 minterval=15 mult=(file=all-low.csv)\n"),
              std::string::npos)
        << content("all.dss");
    EXPECT_NE(content("all.dss").find("mult=(file=all-low_2.csv)"), std::string::npos);
    EXPECT_TRUE(exists("all-low_2.csv"));
}

TEST_F(ExportTable, APlayerHasSeconds) {
    const auto run =
        runProgram("tallyline-cli", {"export", "gridlabd", later, "-o", folder.path("p.player")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(content("p.player").substr(0, 48), "2024-03-15 00:15:00,1.0\n2024-03-15 00:30:00,2.0\n");
}

} // namespace
} // namespace tally
