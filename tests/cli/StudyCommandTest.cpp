// SPDX-License-Identifier: GPL-3.0-or-later
// Load studies and transformer loading as a user's script asks for them.
#include "support/Process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tally {
namespace {

using ::testing::HasSubstr;
using testing::runProgram;
using testing::TemporaryFolder;
using Json = nlohmann::json;

// A 15-minute file whose newest reading is at 23:30 of the day before `date` ("mm-dd-yy"); readings newest
// first.
std::string dataFile(const std::string& date, const std::string& readings, char mode = 'a', char type = 'X') {
    return std::string("PQ") + type + mode + "   1234" + std::string(19, ' ') + date +
           " 00:00   Vbatt 3E8\r" + readings + "\x1a";
}

struct StudyCommand : ::testing::Test {
    TemporaryFolder folder;
    // 22:45 to 23:30 of 4 March 2024, a Monday: 10, 20, 40 and 30 A; 10, 10, 10 and 30; 10, 0, 40, 30.
    std::string red = folder.write("red.dat", dataFile("03-05-24", " 30.0 40.0 20.0 10.0"));
    std::string white = folder.write("white.dat", dataFile("03-05-24", " 30.0 10.0 10.0 10.0"));
    std::string blue = folder.write("blue.dat", dataFile("03-05-24", " 30.0 40.0  0.0 10.0"));
    std::string volts = folder.write("volts.dat", dataFile("03-05-24", "120.0121.0122.0123.0", 'a', 'V'));

    Json json(std::vector<std::string> arguments) {
        arguments.emplace_back("--json");
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 0) << run.err;
        return run.status == 0 ? Json::parse(run.out) : Json();
    }
    void refuses(int status, std::vector<std::string> arguments, const std::string& text) {
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, status) << run.err;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(text));
    }
};

TEST_F(StudyCommand, OneFileHasItsFigures) {
    const Json study = json({"study", red, "--window", "30", "--high", "19.9"});
    EXPECT_EQ(
        study["span"],
        Json::parse(R"({"start":"2024-03-04T22:45","end":"2024-03-04T23:45","interval":15,"points":4})"));
    const Json& channel = study["channels"].at(0);
    EXPECT_EQ(channel["name"], "red.dat");
    EXPECT_EQ(channel["unit"], "A");
    EXPECT_EQ(channel["mean"], 25.0);
    EXPECT_EQ(channel["max"], 40.0);
    EXPECT_EQ(channel["maxAt"], "2024-03-04T23:15");
    EXPECT_EQ(channel["min"], 10.0);
    EXPECT_EQ(channel["minAt"], "2024-03-04T22:45");
    // 23:00 to 23:30 is the one complete half hour; 23:15 begins the best half hour of all.
    EXPECT_EQ(channel["demand"],
              Json::parse(R"({"window":30,"block":{"max":30.0,"at":"2024-03-04T23:00","windows":1},
                                                 "rolling":{"max":35.0,"at":"2024-03-04T23:15"}})"));
    EXPECT_EQ(channel["loadFactor"], 1.0);
    EXPECT_EQ(channel["duration"].size(), 101U);
    EXPECT_EQ(channel["duration"][26], 30.0);
    EXPECT_EQ(channel["limits"]["minutesAbove"], 45);
    EXPECT_EQ(channel["limits"]["above"].at(0)["peakAt"], "2024-03-04T23:15");
    EXPECT_EQ(channel["limits"]["below"], Json::array());
    const Json& weekday = channel["days"]["weekday"];
    EXPECT_EQ(weekday["days"], 1);
    EXPECT_EQ(weekday["mean"].size(), 96U);
    EXPECT_EQ(weekday["mean"][93], 40.0);
    EXPECT_EQ(weekday["p90"][0], nullptr);
    EXPECT_EQ(channel["days"]["sunday"]["days"], 0);
    EXPECT_EQ(study["phases"], nullptr);
    EXPECT_EQ(study["diversity"], nullptr);
    EXPECT_EQ(study["capacity"], nullptr);
    EXPECT_EQ(study["flags"], Json::array());
}

TEST_F(StudyCommand, ThreeFilesHavePhasesDiversityAndPower) {
    const Json study =
        json({"study", red, white, blue, "--volts", "13,800", "--rating", "60", "--add", "10"});
    EXPECT_EQ(study["channels"].size(), 4U);
    EXPECT_EQ(study["channels"][3]["name"], "power");
    EXPECT_EQ(study["channels"][3]["unit"], "kW");
    // 30.0 A in each phase at 23:30.
    EXPECT_NEAR(study["channels"][3]["max"].get<double>(), 30 * 1.732 * 13.8, 0.01);
    // 40, 10, 40: 20 from the mean of 30. 20, 10, 0: 10 from 10.
    EXPECT_EQ(study["phases"]["unbalance"]["max"], 100.0);
    EXPECT_EQ(study["phases"]["unbalance"]["maxAt"], "2024-03-04T23:00");
    EXPECT_EQ(study["phases"]["unbalance"]["atPeak"], 200.0 / 3);
    EXPECT_EQ(study["phases"]["unbalance"]["counted"], 4);
    EXPECT_EQ(study["phases"]["neutral"]["max"], 30.0);
    EXPECT_EQ(study["diversity"]["sumOfPeaks"], 110.0);
    EXPECT_EQ(study["diversity"]["peakOfSum"], 90.0);
    EXPECT_EQ(study["diversity"]["peakOfSumAt"], "2024-03-04T23:15");
    const Json capacity = study["capacity"];
    EXPECT_EQ(capacity["demand"], 40.0);
    EXPECT_EQ(capacity["channel"], "red.dat");
    EXPECT_EQ(capacity["required"], 60.0);
    EXPECT_EQ(capacity["ok"], true);
    EXPECT_EQ(capacity["enoughDays"], false);
}

TEST_F(StudyCommand, WithoutACompleteWindowTheFiguresAreNull) {
    const Json study = json({"study", red, white, "--window", "60"});
    const Json& channel = study["channels"].at(0);
    EXPECT_EQ(channel["demand"]["block"], Json::parse(R"({"max":null,"at":null,"windows":0})"));
    EXPECT_EQ(channel["loadFactor"], nullptr);
    EXPECT_EQ(study["diversity"]["diversityFactor"], nullptr);
    EXPECT_EQ(channel["demand"]["rolling"]["max"], 25.0);
}

TEST_F(StudyCommand, AHolidayIsASunday) {
    const Json study = json({"study", red, "--holiday", "2024-03-04", "--holiday", "2024-12-25"});
    EXPECT_EQ(study["channels"][0]["days"]["weekday"]["days"], 0);
    EXPECT_EQ(study["channels"][0]["days"]["sunday"]["days"], 1);
}

TEST_F(StudyCommand, WhatMakesNoSenseIsWrongUsage) {
    refuses(2, {"study"}, "Usage: tallyline-cli study");
    refuses(2, {"study", red, white, blue, red}, "Usage");
    refuses(2, {"study", red, "--window", "25"}, "is none of 5, 10, 15, 20, 30 and 60 minutes");
    refuses(2, {"study", red, "--window", "20"}, "no multiple of the interval");
    refuses(2, {"study", red, "--high", "nan"}, "no plain number");
    refuses(2, {"study", red, "--high", "1e3"}, "no plain number");
    refuses(2, {"study", red, "--high", ""}, "");
    refuses(2, {"study", red, "--high", "10", "--low", "10.0"}, "is not above the low limit");
    refuses(2, {"study", red, "--rating", "0"}, "is not above 0");
    refuses(2, {"study", red, "--rating", "lots"}, "no plain number");
    refuses(2, {"study", red, "--add", "5"}, "needs a rating");
    refuses(2, {"study", red, "--factor", "1"}, "needs a rating");
    refuses(2, {"study", red, "--rating", "9", "--add", "-1"}, "is below 0");
    refuses(2, {"study", red, "--rating", "9", "--factor", "0"}, "is not above 0");
    refuses(2, {"study", red, "--pf", "0.9"}, "needs a voltage");
    refuses(2, {"study", red, "--volts", "0"}, "is not above 0");
    refuses(2, {"study", red, "--volts", "1,38"}, "no plain number");
    refuses(2, {"study", red, "--volts", "100", "--pf", "-1"}, "is below 0");
    refuses(2, {"study", red, "--holiday", "2023-02-29"}, "is no date");
    refuses(2, {"study", red, "--from", "4"}, "outside the file");
    refuses(2, {"study", red, "--from", "2", "--to", "1"}, "turned round");
}

TEST_F(StudyCommand, FilesThatDoNotFitAreRefused) {
    const std::string later = folder.write("later.dat", dataFile("05-05-24", " 30.0 40.0"));
    const std::string triples = folder.write("g.dat", dataFile("03-05-24", "  7.0  9.0  8.0", 'g'));
    refuses(1, {"study", red, volts}, "The files are not all of one unit");
    refuses(1, {"study", red, later}, "The files have no reading in common");
    refuses(1, {"study", red, triples}, "Mode mixing not allowed");
    refuses(1, {"study", volts, "--rating", "100"}, "A capacity check needs files of amps");
    refuses(1, {"study", volts, "--volts", "13800"}, "Files must all be amps for power to plot");
    refuses(1, {"study", triples, "--volts", "13800"}, "Files must be average mode for power to plot");
    refuses(1, {"study", folder.path("none.dat")}, "File not found");
}

TEST_F(StudyCommand, PlotAndPowerAlignFilesByTime) {
    const std::string long1 =
        folder.write("long.dat", dataFile("03-05-24", " 50.0 40.0 30.0 20.0 10.0  5.0"));
    // long begins two readings before red: its 30.0, 20.0 stand beside red's first ones only by time.
    const Json apart = json({"power", red, long1, "--volts", "10000"});
    EXPECT_NEAR(apart["kw"][0].get<double>(), 10 * (10 + 5.0), 1e-3);
    const Json together = json({"power", long1, red, "--volts", "10000", "--align"});
    EXPECT_EQ(together["kw"].size(), 4U);
    EXPECT_NEAR(together["kw"][0].get<double>(), 10 * (20 + 10.0), 1e-3);
    EXPECT_NEAR(together["kw"][3].get<double>(), 10 * (50 + 30.0), 1e-3);
    const Json part = json({"power", long1, red, "--volts", "10000", "--align", "--from", "4"});
    EXPECT_EQ(part["kw"].size(), 2U);
    const auto allFiles = [&](std::vector<std::string> arguments) {
        const std::string text = runProgram("tallyline-cli", arguments).out;
        return text.substr(text.find("All Files:"), text.find("         Min:") - text.find("All Files:"));
    };
    EXPECT_EQ(allFiles({"power", long1, red, "--align", "--from", "2", "--to", "3"}),
              allFiles({"power", long1, red}))
        << "the time of the files as they are";
    const Json plot = json({"plot", long1, red, "--align"});
    EXPECT_EQ(plot["series"][0]["points"], 4);
    EXPECT_EQ(plot["labels"][0], "Mar 04 22:45");
}

TEST_F(StudyCommand, AStudyIsATextAPdfOrAWorkbook) {
    const auto text = runProgram("tallyline-cli", {"study", red, "--high", "20"});
    EXPECT_THAT(text.out, HasSubstr("Load study\n"));
    EXPECT_THAT(text.out, HasSubstr("30 min above 20 A in 1 run."));
    const std::string pdf = folder.path("s.PDF");
    const std::string xlsx = folder.path("s.xlsx");
    EXPECT_EQ(runProgram("tallyline-cli", {"study", red, "-o", pdf}).out, "");
    EXPECT_EQ(TemporaryFolder::read(pdf).substr(0, 5), "%PDF-");
    EXPECT_THAT(runProgram("tallyline-cli", {"study", red, "--json", "-o", xlsx}).out, HasSubstr("\"span\""));
    EXPECT_EQ(TemporaryFolder::read(xlsx).substr(0, 2), "PK");
    refuses(2, {"study", red, "-o", folder.path("s.txt")}, ".pdf");
    refuses(1, {"study", red, "-o", folder.path("no/s.pdf")}, "was not written");
}

TEST_F(StudyCommand, LoadingSaysWhatATransformerWentThrough) {
    // Rated load throughout: 98 °C, ageing 1.
    const std::string full = folder.write("full.dat", dataFile("03-05-24", " 99.0 99.0 99.0 99.0"));
    const Json loading = json({"loading", full, "--rated", "99"});
    EXPECT_EQ(loading["start"], "2024-03-04T22:45");
    EXPECT_EQ(loading["end"], "2024-03-04T23:45");
    EXPECT_EQ(loading["hours"], 1.0);
    EXPECT_NEAR(loading["hotSpotMax"].get<double>(), 98.0, 1e-9);
    EXPECT_EQ(loading["hotSpotMaxAt"], "2024-03-04T22:45");
    EXPECT_NEAR(loading["topOilMax"].get<double>(), 75.0, 1e-9);
    EXPECT_NEAR(loading["ageing"].get<double>(), 1.0, 1e-9);
    EXPECT_EQ(loading["kMax"], 1.0);
    const Json& parameters = loading["parameters"];
    EXPECT_EQ(parameters["cooling"], "distribution");
    EXPECT_NEAR(parameters["gradient"].get<double>(), 23 / 1.1, 1e-12);
    EXPECT_NEAR(parameters["hotSpotRise"].get<double>(), 23, 1e-12);
    EXPECT_EQ(parameters["tauWinding"], 4.0);
    EXPECT_EQ(parameters["paper"], "normal");
    const Json od = json({"loading", full, "--rated", "99", "--cooling", "od", "--ambient", "-5.5",
                          "--hot-spot-factor", "1.5", "--paper", "upgraded"})["parameters"];
    EXPECT_NEAR(od["hotSpotRise"].get<double>(), 29 / 1.3 * 1.5, 1e-12);
    EXPECT_EQ(od["ambient"], -5.5);
    const auto text = runProgram("tallyline-cli", {"loading", full, "--rated", "99"});
    EXPECT_THAT(text.out, HasSubstr("98.0 °C at 2024-03-04 22:45"));
}

TEST_F(StudyCommand, LoadingRefusesWhatMakesNoSense) {
    refuses(1, {"loading", volts, "--rated", "99"}, "needs a file of amps");
    refuses(2, {"loading", red}, "--rated");
    refuses(2, {"loading", red, white, "--rated", "9"}, "");
    refuses(2, {"loading", red, "--rated", "0"}, "is not above 0");
    refuses(2, {"loading", red, "--rated", "1e2"}, "no plain number");
    refuses(2, {"loading", red, "--rated", "9", "--cooling", "fan"}, "is none of distribution, onan");
    refuses(2, {"loading", red, "--rated", "9", "--paper", "wood"}, "neither normal nor upgraded");
    refuses(2, {"loading", red, "--rated", "9", "--hot-spot-factor", "0.9"}, "is below 1");
    refuses(2, {"loading", red, "--rated", "9", "--loss-ratio", "0"}, "is not above 0");
    refuses(2, {"loading", red, "--rated", "9", "--gradient", "-1"}, "is not above 0");
    refuses(2, {"loading", red, "--rated", "9", "--top-oil-rise", "0"}, "is not above 0");
}

} // namespace
} // namespace tally
