// SPDX-License-Identifier: GPL-3.0-or-later
// The archive as a user's script works with it. The recordings are small enough to work every figure out on
// paper.
#include "cli/Started.h"
#include "support/Process.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

namespace tally {
namespace {

using nlohmann::json;
using testing::Finished;
using testing::runProgram;
using testing::TemporaryFolder;

// Columns 1-3 model, 4 mode, 8-11 serial, 31-44 time, 45-52 "   Vbatt".
std::string dataText(const std::string& time, const std::string& readings, char mode = 'a',
                     const std::string& serial = "1234", const std::string& model = "PQX") {
    return model + mode + "   " + serial + std::string(23 - serial.size(), ' ') + time + "   Vbatt 3E8\r" +
           readings + "\x1a";
}

// The last reading lies one interval before the header time, and they are counted back from there.
struct ArchiveCommand : ::testing::Test {
    TemporaryFolder folder;
    std::string db = folder.path("all.sqlite");

    ArchiveCommand() {
        for (const char* name : {"north", "north/old", "south"})
            std::filesystem::create_directory(folder.path(name));
        // 08:45 10, 09:00 20, 09:15 30, 09:30 40
        folder.write("north/maple.dat", dataText("03-15-24 10:00", "  40  30  20  10"));
        folder.write("north/maple.not", "North\r\nMaple\r\nred\r\nnear the mill, at 100%\r\n");
        // 09:00 200, 09:15 100, on the day after
        folder.write("south/oak.dat", dataText("03-16-24 09:45", " 100 200", 'a', "77"));
        folder.write("south/oak.not", "South\r\nOak\r\n\r\n\r\n");
    }

    Finished archive(std::vector<std::string> arguments, bool init = true) {
        if (init && !std::filesystem::exists(db)) {
            EXPECT_EQ(runProgram("tallyline-cli", {"archive", "--db", db, "init"}).status, 0);
        }
        arguments.insert(arguments.begin(), {"archive", "--db", db});
        return runProgram("tallyline-cli", arguments);
    }
    json document(std::vector<std::string> arguments, int status = 0) {
        arguments.emplace_back("--json");
        const Finished run = archive(arguments);
        EXPECT_EQ(run.status, status) << run.err;
        return json::parse(run.out, nullptr, false);
    }
    void addBoth() { EXPECT_EQ(archive({"add", folder.path("north"), folder.path("south")}).status, 0); }
    std::string idOf(const std::string& circuit) {
        return document({"find", "--circuit", circuit}).at(0).at("id");
    }
};

TEST_F(ArchiveCommand, AddsFoldersAndSkipsWhatIsBad) {
    folder.write("north/old/copy.dat", dataText("03-15-24 10:00", "  40  30  20  10"));
    folder.write("north/old/bad.dat", "no recording");
    folder.write("north/letter.txt", "no data file");
    const json result = document({"add", folder.path("north"), folder.path("nowhere.dat")}, 1);
    EXPECT_EQ(result["added"], 1);
    EXPECT_EQ(result["already"], 1);
    EXPECT_EQ(result["failed"], 2);
    EXPECT_EQ(result["errors"].size(), 2U);
    std::map<std::string, std::string> reasons;
    for (const json& error : result["errors"])
        reasons[error["path"]] = error["reason"];
    EXPECT_EQ(reasons[folder.path("north/old/bad.dat")], "Error in processing file");
    EXPECT_EQ(reasons[folder.path("nowhere.dat")], "File not found");
}

TEST_F(ArchiveCommand, CountsTheSecondAddingAsThere) {
    addBoth();
    const json result = document({"add", folder.path("south"), folder.path("north/maple.dat")});
    EXPECT_EQ(result["added"], 0);
    EXPECT_EQ(result["already"], 2);
    EXPECT_EQ(document({"stats"})["recordings"], 2);
}

TEST_F(ArchiveCommand, RefusesWhereThereIsNoArchive) {
    for (const std::vector<std::string>& command : std::vector<std::vector<std::string>>{
             {"add", folder.path("north")}, {"find"}, {"stats"}, {"show", "12"}, {"verify"}}) {
        const Finished run = archive(command, false);
        EXPECT_EQ(run.status, 1) << command[0];
        EXPECT_NE(run.err.find("There is no archive"), std::string::npos) << run.err;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_FALSE(std::filesystem::exists(db));
}

TEST_F(ArchiveCommand, MakesAFileForThisUserAlone) {
    EXPECT_EQ(archive({"init"}).status, 0);
    struct stat facts = {};
    ASSERT_EQ(stat(db.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0600U);
    EXPECT_EQ(archive({"init"}).status, 0);
}

TEST_F(ArchiveCommand, ShowsTheFactsOfARecording) {
    addBoth();
    const json found = document({"find", "maple"});
    ASSERT_EQ(found.size(), 1U);
    const json& entry = found[0];
    EXPECT_EQ(entry["id"].get<std::string>().size(), 16U);
    EXPECT_EQ(entry["serial"], "1234");
    EXPECT_EQ(entry["station"], "North");
    EXPECT_EQ(entry["circuit"], "Maple");
    EXPECT_EQ(entry["unit"], "A");
    EXPECT_EQ(entry["interval"], 15);
    EXPECT_EQ(entry["start"], "2024-03-15T08:45");
    EXPECT_EQ(entry["end"], "2024-03-15T09:45");
    EXPECT_EQ(entry["count"], 4);
    EXPECT_EQ(entry["min"], 10.0);
    EXPECT_EQ(entry["max"], 40.0);
    EXPECT_EQ(entry["maxAt"], "2024-03-15T09:30");
    EXPECT_EQ(entry["mean"], 25.0);
    EXPECT_EQ(entry["loadFactor"], 0.625);
    EXPECT_EQ(entry["notes"], (json{"North", "Maple", "red", "near the mill"}));
    EXPECT_EQ(entry["paths"], (json{folder.path("north/maple.dat")}));
    const json shown = document({"show", entry["id"].get<std::string>().substr(0, 6)});
    for (const auto& [key, value] : entry.items())
        EXPECT_EQ(shown[key], value) << key;
}

TEST_F(ArchiveCommand, FindsByWordsNamesAndDates) {
    addBoth();
    EXPECT_EQ(document({"find"}).size(), 2U);
    EXPECT_EQ(document({"find", "MILL", "north"}).size(), 1U);
    EXPECT_EQ(document({"find", "oak.dat"}).size(), 1U);
    EXPECT_EQ(document({"find", "[x]"}).size(), 0U);
    EXPECT_EQ(document({"find", "{}"}).size(), 0U);
    EXPECT_EQ(document({"find", "station"}).size(), 0U);
    EXPECT_EQ(document({"find", "--station", "SOUTH"}).size(), 1U);
    EXPECT_EQ(document({"find", "--serial", "77"}).size(), 1U);
    EXPECT_EQ(document({"find", "--unit", "V"}).size(), 0U);
    EXPECT_EQ(document({"find", "--from", "2024-03-16"}).size(), 1U);
    EXPECT_EQ(document({"find", "--to", "2024-03-15"}).size(), 1U);
    EXPECT_EQ(document({"find", "--from", "2024-03-15", "--to", "2024-03-16"}).size(), 2U);
}

TEST_F(ArchiveCommand, TakesEverySignOfAWordForItself) {
    addBoth();
    // "north" has an o, but none in brackets.
    EXPECT_EQ(document({"find", "[o]"}).size(), 0U);
    EXPECT_EQ(document({"find", "[o,a]"}).size(), 0U);
    EXPECT_EQ(document({"find", "ma%e"}).size(), 0U);
    EXPECT_EQ(document({"find", "n_rth"}).size(), 0U);
    EXPECT_EQ(json::parse(archive({"find", "--json", "--", "-x"}).out).size(), 0U);
    EXPECT_EQ(json::parse(archive({"find", "--json", "mill", "--", "--json"}).out).size(), 0U);
    EXPECT_EQ(json::parse(archive({"find", "--json", "--", "mill"}).out).size(), 1U);
    EXPECT_EQ(archive({"assign", idOf("Oak"), "--circuit", "[o]"}).status, 0);
    EXPECT_EQ(document({"find", "[O]"}).size(), 1U);
    EXPECT_EQ(document({"find", "--circuit", "[o]"}).size(), 1U);
    folder.write("at 100%.dat", dataText("03-17-24 09:45", " 100 200"));
    EXPECT_EQ(document({"add", folder.path("at 100%.dat")})["added"], 1);
    EXPECT_EQ(document({"find", "100%"}).size(), 1U);
}

TEST_F(ArchiveCommand, TakesWrongUsageForWhatItIs) {
    addBoth();
    for (const std::vector<std::string>& command :
         std::vector<std::vector<std::string>>{{},
                                               {"nonsense"},
                                               {"add"},
                                               {"find", "--from", "yesterday"},
                                               {"find", "--from", "2024-02-30"},
                                               {"find", "--unit", "W"},
                                               {"find", "--from", "2024-03-16", "--to", "2024-03-15"},
                                               {"show"},
                                               {"get", "12"},
                                               {"peaks", "--top", "0"},
                                               {"peaks", "--top", "x"},
                                               {"peaks", "--by", "colour"},
                                               {"growth"},
                                               {"typical"},
                                               {"station", "North"},
                                               {"station", "North", "--from", "2024-03-15"},
                                               {"assign", "12"},
                                               {"backup"},
                                               {"copy"},
                                               {"copy", "mysql://host/load"},
                                               {"init", "--partition-on", "postgresql://x@localhost/y"}}) {
        const Finished run = archive(command);
        EXPECT_EQ(run.status, 2) << (command.empty() ? "" : command[0]) << run.err;
        EXPECT_NE(run.err.find("Usage:"), std::string::npos) << run.err;
        EXPECT_EQ(run.out, "");
    }
}

TEST_F(ArchiveCommand, NamesARecordingByAnyUnambiguousBeginning) {
    addBoth();
    const std::string id = idOf("Maple");
    EXPECT_EQ(archive({"show", id}).status, 0);
    for (const std::string& wrong :
         {std::string("zz"), std::string(16, id[0] == 'f' ? 'e' : 'f'), std::string()}) {
        const Finished run = archive({"show", wrong});
        EXPECT_EQ(run.status, 1) << wrong;
        EXPECT_NE(run.err, "");
    }
}

TEST_F(ArchiveCommand, GivesBackTheFileAndItsNotes) {
    addBoth();
    folder.write("back.dat", "an older file");
    EXPECT_EQ(archive({"get", idOf("Maple"), "-o", folder.path("back.dat")}).status, 0);
    EXPECT_EQ(TemporaryFolder::read(folder.path("back.dat")),
              TemporaryFolder::read(folder.path("north/maple.dat")));
    EXPECT_EQ(TemporaryFolder::read(folder.path("back.not")),
              TemporaryFolder::read(folder.path("north/maple.not")));
    // Notes of the file that was there before do not stay beside a recording without notes.
    folder.write("south/plain.dat", dataText("03-17-24 09:45", " 100 200"));
    archive({"add", folder.path("south/plain.dat")});
    const std::string plain = document({"find", "plain.dat"}).at(0).at("id");
    EXPECT_EQ(archive({"get", plain, "-o", folder.path("back.dat")}).status, 0);
    EXPECT_FALSE(std::filesystem::exists(folder.path("back.not")));
    EXPECT_EQ(archive({"get", plain, "-o", folder.path("nowhere/back.dat")}).status, 1);
}

TEST_F(ArchiveCommand, GivesNeitherFileWhenTheNotesCannotBeWritten) {
    addBoth();
    folder.write("back.dat", "an older file");
    std::filesystem::create_directory(folder.path("back.not"));
    const Finished run = archive({"get", idOf("Maple"), "-o", folder.path("back.dat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(folder.path("back.not") + " was not written"), std::string::npos) << run.err;
    EXPECT_EQ(TemporaryFolder::read(folder.path("back.dat")), "an older file");
}

TEST_F(ArchiveCommand, AnswersAboutLoads) {
    addBoth();
    const json peaks = document({"peaks"});
    ASSERT_EQ(peaks.size(), 2U);
    EXPECT_EQ(peaks[0]["circuit"], "Oak");
    EXPECT_EQ(peaks[0]["max"], 200.0);
    EXPECT_EQ(peaks[0]["maxAt"], "2024-03-16T09:00");
    EXPECT_EQ(peaks[0]["mean"], 150.0);
    EXPECT_EQ(peaks[0]["loadFactor"], 0.75);
    EXPECT_EQ(document({"peaks", "--top", "1"}).size(), 1U);
    EXPECT_EQ(document({"peaks", "--to", "2024-03-15"}).at(0)["circuit"], "Maple");
    const json coverage = document({"coverage"});
    EXPECT_EQ(coverage["days"], 2);
    EXPECT_EQ(coverage["first"], "2024-03-15");
    EXPECT_EQ(coverage["last"], "2024-03-16");
    EXPECT_EQ(coverage["gaps"], json::array());
    EXPECT_EQ(document({"coverage", "--circuit", "elm"})["first"], nullptr);
    const json growth = document({"growth", "--circuit", "oak"});
    EXPECT_EQ(growth,
              (json{{{"year", 2024}, {"peak", 200.0}, {"mean", 150.0}, {"days", 1}, {"change", nullptr}}}));
    const json typical = document({"typical", "--circuit", "Maple"}); // a Friday
    EXPECT_EQ(typical["weekday"]["days"], 1);
    EXPECT_EQ(typical["weekday"]["mean"].size(), 96U);
    EXPECT_EQ(typical["weekday"]["mean"][38], 40.0); // 09:30
    EXPECT_EQ(typical["weekday"]["p90"][39], nullptr);
    EXPECT_EQ(typical["sunday"]["days"], 0);
    const json station = document({"station", "North", "--from", "2024-03-01", "--to", "2024-03-31"});
    EXPECT_EQ(station, (json{{{"date", "2024-03-15"},
                              {"peak", 40.0},
                              {"peakAt", "2024-03-15T09:30"},
                              {"mean", 25.0},
                              {"circuits", 1}}}));
    const json stats = document({"stats"});
    EXPECT_EQ(stats["readings"], 6);
    EXPECT_EQ(stats["circuits"], 2);
    EXPECT_EQ(stats["stations"], 2);
    EXPECT_EQ(stats["first"], "2024-03-15");
}

TEST_F(ArchiveCommand, AssignsRemovesAndVerifies) {
    addBoth();
    const std::string id = idOf("Maple");
    EXPECT_EQ(document({"assign", id, "--station", "West", "--circuit", "Elm"})["circuit"], "Elm");
    EXPECT_EQ(document({"find", "--circuit", "Elm", "--station", "west"}).size(), 1U);
    const Finished asked = archive({"remove", id});
    EXPECT_EQ(asked.status, 1);
    EXPECT_EQ(document({"stats"})["recordings"], 2);
    EXPECT_EQ(archive({"remove", id, "--yes"}).status, 0);
    EXPECT_EQ(document({"stats"})["recordings"], 1);
    EXPECT_EQ(document({"verify"}), (json{{"checked", 1}, {"bad", json::array()}}));
}

TEST_F(ArchiveCommand, BacksUpAndCopies) {
    addBoth();
    const std::string backup = folder.path("backup.sqlite");
    EXPECT_EQ(archive({"backup", backup}).status, 0);
    EXPECT_EQ(archive({"backup", backup}).status, 1);
    const Finished stats =
        runProgram("tallyline-cli", {"archive", "stats", "--json", "--db", "sqlite:" + backup});
    EXPECT_EQ(json::parse(stats.out, nullptr, false)["recordings"], 2);
    EXPECT_EQ(document({"copy", folder.path("copy.sqlite")})["added"], 2);
    EXPECT_EQ(archive({"copy", db}).status, 1);
}

TEST_F(ArchiveCommand, StandsForAFileInOtherCommands) {
    addBoth();
    const std::string id = "archive:" + idOf("Maple");
    const std::string file = folder.path("north/maple.dat");
    for (const std::string command : {"readings", "table"}) {
        const Finished given = runProgram("tallyline-cli", {command, id, "--db", db});
        EXPECT_EQ(given.status, 0) << given.err;
        EXPECT_EQ(given.out, runProgram("tallyline-cli", {command, file}).out);
    }
    setenv("TALLYLINE_ARCHIVE", db.c_str(), 1);
    const Finished info = runProgram("tallyline-cli", {"info", id, "--json"});
    unsetenv("TALLYLINE_ARCHIVE");
    EXPECT_EQ(info.status, 0) << info.err;
    EXPECT_EQ(json::parse(info.out, nullptr, false)["notes"][1], "Maple");
    EXPECT_EQ(runProgram("tallyline-cli", {"info", "archive:ffff", "--db", db}).status, 1);
    // A recording of the archive is never changed.
    EXPECT_EQ(runProgram("tallyline-cli", {"notes", id, "--db", db, "--name", "x"}).status, 1);
}

TEST_F(ArchiveCommand, WatchesAFolder) {
    EXPECT_EQ(archive({"init"}).status, 0);
    testing::Started watching("tallyline-cli",
                              {"archive", "--db", db, "add", "--watch", folder.path("north")});
    ASSERT_TRUE(watching.says("1 added")) << watching.said();
    folder.write("north/late.dat", dataText("03-17-24 09:45", " 100 200"));
    ASSERT_TRUE(watching.says("2 added")) << watching.said();
    watching.interrupt();
    EXPECT_EQ(watching.end(), 0) << watching.said();
    EXPECT_EQ(document({"stats"})["recordings"], 2);
}

} // namespace
} // namespace tally
