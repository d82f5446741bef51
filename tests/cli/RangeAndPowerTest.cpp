// SPDX-License-Identifier: GPL-3.0-or-later
// Ranges, several files and what their views print, run as a user's script runs them.
#include "support/Process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tally {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using testing::runProgram;
using testing::TemporaryFolder;

std::string header(char mode, const std::string& model = "PQX") {
    return model + mode + "   " + "1234" + std::string(19, ' ') + "03-15-24 10:00   Vbatt 3E8\r";
}

struct RangeAndPower : ::testing::Test {
    TemporaryFolder folder;
    // Three triples, newest first, each smallest, largest, middle: averages 8, 3 and 20 A. The newest one
    // lies two intervals before the header time.
    std::string triples = folder.write("g.dat", header('g') + "   7   9   8   1   4   3  12  30  20\x1a");
    std::string phases[3] = {phase("r.dat"), phase("w.dat"), phase("b.dat")};

    // Three readings of 100.0 A.
    std::string phase(const std::string& name) {
        return folder.write(name, header('a') + "100.0100.0100.0\x1a");
    }
    std::string out(const std::vector<std::string>& arguments) {
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 0) << run.err;
        return run.out;
    }
};

TEST_F(RangeAndPower, ARangeOfAMinMaxAvgFileIsWholeTriples) {
    const std::string middle = "3,09:15  Mar 15, 24,3.0\n4,09:15  Mar 15, 24,4.0\n5,09:15  Mar 15, 24,1.0\n";
    EXPECT_EQ(out({"readings", triples, "--from", "4", "--to", "4"}), middle);
    EXPECT_THAT(out({"table", triples, "--from", "3", "--to", "5"}),
                HasSubstr("\r\n09:15  Mar 15, 24             003           004           001    \r\n"));
    out({"save", triples, "-o", folder.path("s.dat"), "--from", "5", "--to", "5"});
    EXPECT_EQ(TemporaryFolder::read(folder.path("s.dat")),
              "\"\r\n\n\nPQXg   1234" + std::string(19, ' ') +
                  "03-15-24 09:15   Vbatt 3E8\r   1   4   3\x1a\"\r\n");
}

TEST_F(RangeAndPower, ASummaryOfARangeNamesItsTimesAndExtremes) {
    const std::string text = out({"summary", triples, "--from", "3", "--to", "8"});
    EXPECT_THAT(text,
                HasSubstr("           Selected:       Start  09:15  Mar 15, 24                   Finish  "
                          "09:30  Mar 15, 24\r\n"
                          "                                   Min      1.0           "
                          "                                 max       9.0\r\n"));
    EXPECT_THAT(out({"summary", triples}), Not(HasSubstr("Selected")));
}

TEST_F(RangeAndPower, APlotOfARangeShowsItZoomed) {
    const std::string text = out({"plot", triples, "--from", "3", "--to", "8", "--json"});
    EXPECT_THAT(text, HasSubstr(R"("legend": "Average",
      "points": 2)"));
    EXPECT_THAT(text, HasSubstr(R"("Mar 15 09:15",
    "Mar 15 09:30")"));
    EXPECT_THAT(text, HasSubstr("\"extremeMin\": 10,\n  \"extremeMax\": 90\n"));
}

TEST_F(RangeAndPower, TheStatisticOfSeveralMinMaxAvgFilesIsChosen) {
    const std::string other = folder.write("h.dat", header('g') + "   7   9   8\x1a");
    const std::string text = out({"plot", triples, other, "--show", "min", "--json"});
    EXPECT_THAT(text, HasSubstr(R"("title": "Data Displayed: MINIMUM\r\n         File Data:  N/A   )"));
}

TEST_F(RangeAndPower, PowerOfThreeFiles) {
    const std::vector<std::string> power = {"power", phases[0], phases[1], phases[2], "--volts", "13800"};
    const auto with = [&](std::vector<std::string> more) {
        more.insert(more.begin(), power.begin(), power.end());
        return out(more);
    };
    const std::string json = with({"--json"});
    EXPECT_THAT(json, HasSubstr("2390.16"));
    // 2 x 2390.16 x 15 / 60 = 1195.08; 173.2 x 0.9 x 13.8 = 2151.144.
    EXPECT_THAT(json, HasSubstr(R"("energy": "1,195 KWHR")"));
    EXPECT_THAT(json, HasSubstr(R"("ymin": 2151.0)"));
    EXPECT_THAT(json, HasSubstr(R"("extremeMin": 1732,)"));
    EXPECT_THAT(json, HasSubstr(R"("extremeMax": 3000,)"));
    EXPECT_THAT(json, HasSubstr("     Combined;   Nominal Line Voltage 13.8 KV  Power Factor: 1\""));
    EXPECT_THAT(with({"--table"}), HasSubstr("09:00  Mar 15, 24        2390.2    2390.2    2390.2  \r\n"));
    EXPECT_THAT(
        with({"--summary"}),
        HasSubstr("         Min: 2390.2 KW                                      Max: 4140.0 KW    \r\n"));
    EXPECT_THAT(with({"--from", "1", "--to", "1", "--json"}), HasSubstr(R"("energy": "0 KWHR")"));
}

TEST_F(RangeAndPower, AVoltageThatIsHardlyVoltsIsHintedAt) {
    const auto run = runProgram("tallyline-cli", {"power", phases[0], "--volts", "13.8"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.err, HasSubstr("13800 for 13.8 KV"));
    for (const char* option : {"--volts", "--pf"}) {
        const auto beyond = runProgram("tallyline-cli", {"power", phases[0], option, std::string(400, '9')});
        EXPECT_EQ(beyond.status, 1);
        EXPECT_EQ(beyond.err, "Overflow\n");
        EXPECT_EQ(beyond.out, "");
    }
}

TEST_F(RangeAndPower, WhatIsNoPlainNumberIsWrongUsage) {
    for (const auto& [option, value] : {std::pair{"--pf", "abc"},
                                        {"--pf", "0,8"},
                                        {"--pf", ""},
                                        {"--pf", "1e0"},
                                        {"--pf", "nan"},
                                        {"--pf", "0.8x"},
                                        {"--volts", "x"},
                                        {"--volts", "13800 V"},
                                        {"--volts", "13,8"},
                                        {"--volts", "1e4"},
                                        {"--volts", ""}}) {
        const auto run = runProgram("tallyline-cli", {"power", phases[0], option, value, "--json"});
        EXPECT_EQ(run.status, 2) << option << " " << value;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr("Usage: tallyline-cli power"));
    }
}

TEST_F(RangeAndPower, ACommaBeforeThreeDigitsGroupsTheVolts) {
    EXPECT_EQ(out({"power", phases[0], "--volts", "13,800", "--summary"}),
              out({"power", phases[0], "--volts", "13800", "--summary"}));
}

TEST_F(RangeAndPower, WithoutAStoredVoltageTheDefaultIsTold) {
    const auto run = runProgram("tallyline-cli", {"power", phases[0], "--summary"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("Line Voltage: 13800 "));
    EXPECT_EQ(run.err, "No line voltage is stored; taken as 13800 volts\n");
}

TEST_F(RangeAndPower, TheYScaleTakesAWholeNumber) {
    EXPECT_THAT(out({"plot", phases[0], "--ymin", "-3", "--json"}), HasSubstr(R"("ymin": -3.0)"));
    const auto text = runProgram("tallyline-cli", {"plot", phases[0], "--ymin", "x", "--json"});
    EXPECT_EQ(text.status, 1);
    EXPECT_EQ(text.err, "Type mismatch\n");
    EXPECT_EQ(text.out, "");
}

TEST_F(RangeAndPower, APictureThatCannotBeWrittenIsRefused) {
    const auto run = runProgram("tallyline-cli", {"plot", phases[0], "-o", folder.path("none/p.png")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "Path not found\n" + folder.path("none/p.png") +
                           " was not written.\nIts folder is not there. Make it, or choose another one.\n");
}

TEST_F(RangeAndPower, AFileOfAnotherModeIsRefused) {
    const auto run = runProgram("tallyline-cli", {"plot", phases[0], triples, "--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("Mode mixing not allowed\n"));
}

} // namespace
} // namespace tally
