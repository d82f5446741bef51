// SPDX-License-Identifier: GPL-3.0-or-later
// A load survey, run as a user's script runs it.
#include "support/Process.h"
#include "survey/SurveySample.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tally {
namespace {

using testing::dataFile;
using testing::runProgram;
using testing::TemporaryFolder;

class SurveyCommand : public ::testing::Test {
protected:
    TemporaryFolder folder;
    // Three readings before a header time of 14:00 begin at 13:00.
    std::string red = folder.write("r.dat", dataFile({100, 500, 200}));
    std::string white = folder.write("w.dat", dataFile({110, 210, 610}));
    std::string blue = folder.write("b.dat", dataFile({720, 320, 120}));

    std::string feeder(const std::string& name) const { return name + ":" + red + "," + white + "," + blue; }
};

TEST_F(SurveyCommand, PrintsTheFeederReportsAndTheStationReport) {
    const auto run =
        runProgram("tallyline-cli", {"survey", "--station", "North end", "--feeder", feeder("Mill")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "TARNWELL STATION FEEDER REPORT\r\n"
                       "STATION: NORTH END\r\n"
                       "FEEDER AMPS DURING FEEDER PEAK (NON-COINCIDENTAL)  \r\n"
                       "\r\n"
                       "  F1: Mill\r\n"
                       "\t\tAmps          Peak Time;  Date\r\n"
                       "RED           \t0050           \t13:15      Mar 15, 24\r\n"
                       "WHITE       \t0061           \t13:30      Mar 15, 24\r\n"
                       "BLUE         \t0072           \t13:00      Mar 15, 24\r\n"
                       "\r\n"
                       "\t\tRED\tWHITE\tBLUE\tSum\r\n"
                       "At RED peak\t0050\t0021\t0032\t0103\r\n"
                       "At WHITE peak\t0020\t0061\t0012\t0093\r\n"
                       "At BLUE peak\t0010\t0011\t0072\t0093\r\n"
                       "\r\n"
                       "Feeder Phase Amps During Station Peak (Coincidental Peak)\r\n"
                       "                          13:15             Mar 15, 24\r\n"
                       "                      Peak Time         Peak Date\r\n"
                       "\t\t RED          WHITE      BLUE  \r\n"
                       "   F1:  Mill\t 0050           0021         0032\r\n"
                       "Station: NORTH END\r\n");
}

TEST_F(SurveyCommand, PrintsOneJsonDocument) {
    const auto run = runProgram("tallyline-cli", {"survey", "--station", "n", "--feeder", feeder(""),
                                                  "--feeder", feeder("Mill"), "--json"});
    EXPECT_EQ(run.status, 0) << run.err;
    std::string flat;
    for (const char c : run.out)
        if (c != '\n')
            flat += c;
    for (std::size_t at = flat.find("  "); at != std::string::npos; at = flat.find("  ")) {
        // Blanks of a time stay apart from those that set the document out.
        const auto end = flat.find_first_not_of(' ', at);
        if (flat[end] == 'M') {
            flat.replace(at, end - at, "_");
            continue;
        }
        flat.erase(at, end - at);
    }
    EXPECT_EQ(
        flat.find(R"({"station": "N","feeders": [{"name": "Feeder1","peaks": [{"phase": "red","index": 1,)"
                  R"("amps": [500,210,320],"sum": 1030,"time": "13:15_Mar 15, 24"},)"),
        0U)
        << flat;
    EXPECT_NE(flat.find(R"("stationPeak": {"index": 1,"total": 2060,"time": "13:15_Mar 15, 24",)"
                        R"("feeders": [[500,210,320],[500,210,320]]}})"),
              std::string::npos)
        << flat;
    // The same files twice.
    EXPECT_NE(run.err.find("Mill, red phase: r.dat is also taken for Feeder1, red phase\n"),
              std::string::npos);
}

TEST_F(SurveyCommand, PrintsThePaperReport) {
    const auto run = runProgram("tallyline-cli", {"survey", "--station", "n", "--feeder", feeder(""),
                                                  "--print", folder.path("s.pdf"), "--at", "04-02-24 09:30"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(TemporaryFolder::read(folder.path("s.pdf")).substr(0, 5), "%PDF-");
}

TEST_F(SurveyCommand, AnOverflowPrintsNothingElse) {
    const std::string big = folder.write("big.dat", dataFile({9999}));
    const std::string all = ":" + big + "," + big + "," + big;
    const auto run = runProgram("tallyline-cli", {"survey", "--station", "n", "--feeder", all, "--feeder",
                                                  all, "--print", folder.path("s.pdf")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "Overflow\n");
    EXPECT_FALSE(std::filesystem::exists(folder.path("s.pdf")));
}

TEST_F(SurveyCommand, FilesThatAreRefusedEndIt) {
    const std::string mode = folder.write("mode.dat", dataFile({1, 2, 3}, 'b'));
    const std::string damaged = folder.write("damaged.dat", "no recording");
    for (const std::string& bad : {mode, damaged, folder.path("none.dat")}) {
        const auto run = runProgram(
            "tallyline-cli", {"survey", "--station", "n", "--feeder", ":" + red + "," + bad + "," + blue});
        EXPECT_EQ(run.status, 1) << bad;
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.find("Unknown File Error; Check\n" + bad + "\n"), 0U) << run.err;
    }
}

TEST_F(SurveyCommand, AVoltageFileIsNoPhase) {
    std::string text = dataFile({1200, 1210, 1190});
    text[text.find("PQX") + 2] = 'V';
    const std::string volts = folder.write("volts.dat", text);
    const auto run = runProgram(
        "tallyline-cli", {"survey", "--station", "n", "--feeder", ":" + red + "," + volts + "," + blue});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "Not a current file\n" + volts +
                           "\nIt is a recording of voltage. Choose the recording of the phase's current.\n");
}

TEST_F(SurveyCommand, WrongArgumentsAreWrongUsage) {
    const std::string good = feeder("");
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"survey"},
             {"survey", "--station", "n"},
             {"survey", "--station", "n", "--feeder", "no files"},
             {"survey", "--station", "n", "--feeder", "a:b,c"},
             {"survey", "--station", "n", "--feeder", "a:b,c,d,e"},
             {"survey", "--station", "n", "--feeder", "a:b,,d"},
             {"survey", "--station", "n", "--feeder", good, "--feeder", good, "--feeder", good, "--feeder",
              good, "--feeder", good}}) {
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 2) << arguments.back();
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("Usage: tallyline-cli survey"), std::string::npos) << run.err;
    }
}

} // namespace
} // namespace tally
