// SPDX-License-Identifier: GPL-3.0-or-later
// The commands on an instrument against tallyline-sim, both as processes.
#include "support/Background.h"
#include "support/Places.h"
#include "support/Process.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

namespace tally {
namespace {

using testing::BackgroundInstrument;
using testing::Finished;
using testing::runProgram;
using testing::TemporaryFolder;

const std::string header = "KWTa   1234" + std::string(19, ' ') + "03-15-24 14:05   Vbatt 3E8";

struct LinkCommands : ::testing::Test {
    TemporaryFolder folder;
    std::string out = folder.path("out.dat");

    void SetUp() override {
        // A journal and settings of its own.
        setenv("XDG_DATA_HOME", folder.path("data").c_str(), 1);
        setenv("XDG_CONFIG_HOME", folder.path("config").c_str(), 1);
    }
    BackgroundInstrument instrument(std::vector<std::string> options) {
        for (const char* option : {"--clock", "03-15-24 14:05"})
            options.push_back(option);
        return BackgroundInstrument(::testing::binDir(), options);
    }
    Finished download(const BackgroundInstrument& sim, std::vector<std::string> more = {},
                      const std::string& type = "7") const {
        std::vector<std::string> arguments = {"download", "--port", sim.device(), "--type", type, "-o", out};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return runProgram("tallyline-cli", arguments);
    }
    Finished check(const std::string& text, std::vector<std::string> more = {}) const {
        std::vector<std::string> arguments = {"check", folder.write("text", text)};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return runProgram("tallyline-cli", arguments);
    }
    // The bytes of the receptions in the journal.
    std::vector<std::string> journal(const std::string& ending = ".raw") const {
        std::vector<std::string> all;
        const std::filesystem::path place = folder.path("data/Tallyline/journal");
        if (std::filesystem::exists(place))
            for (const auto& entry : std::filesystem::directory_iterator(place))
                if (entry.path().extension() == ending)
                    all.push_back(TemporaryFolder::read(entry.path()));
        return all;
    }
};

TEST_F(LinkCommands, CheckCountsAndReports) {
    const auto run = check(header + "\rT: 1 2 3 999 1000\n\r A\x1a\x1a", {"--json"});
    EXPECT_EQ(run.status, 1);
    for (const char* part : {R"("badLines": 1)", R"("over999": 1)", R"("count999": 1)", R"("ctrlZ": 2)",
                             R"("badChars": 2)", R"("firstBadChar": 65)", R"("result": "1 1 1 2 2")",
                             R"("report999": "")", R"(1 line(s) with an incorrect number of readings\r\n)"})
        EXPECT_NE(run.out.find(part), std::string::npos) << part << "\n" << run.out;
}

TEST_F(LinkCommands, CheckOfACleanTextIsClean) {
    const auto run = check(header + "\rT: 1 2 3 4 5 6 7 8 9 10\n\r\x1a", {"--json"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find(R"("firstBadChar": null)"), std::string::npos);
    EXPECT_NE(run.out.find(R"("result": "")"), std::string::npos);
    EXPECT_NE(run.out.find(R"("report": "")"), std::string::npos);
}

TEST_F(LinkCommands, CheckPlantsTheFaultsOfARunSpecificationAndWritesTheText) {
    std::string text = header + "\rT:";
    for (int i = 0; i < 8; ++i)
        text += " 1 2 3 4 5 6 7 8 9 10\n\r";
    const auto spec = folder.write("spec", "enableChangeTo999=True\nenable999CountReport=True\n");
    const auto run = check(text + "\x1a", {"--runspec", spec, "-o", out, "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("Download had 1 '999' reading(s)"), std::string::npos);
    EXPECT_NE(run.err.find("Flag settings per 'runspec.txt' file:"), std::string::npos);
    EXPECT_NE(TemporaryFolder::read(out).find(" 000  2 3"), std::string::npos);
}

TEST_F(LinkCommands, CheckOfASavedFileLooksAtItsText) {
    EXPECT_EQ(check("\"" + header + "\rT: 1 2 3 4 5 6 7 8 9 10\n\r\x1a\"\r\n").status, 0);
}

TEST_F(LinkCommands, CheckThatOverflowsSaysSo) {
    const auto run = check("T:" + std::string(40000, 'x'));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "Overflow\n");
}

TEST_F(LinkCommands, CheckOfAMissingFileIsRefused) {
    const auto run = runProgram("tallyline-cli", {"check", folder.path("none")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "File not found\n" + folder.path("none") +
                           "\nCheck its name and folder; it may have been moved or renamed.\n");
}

TEST_F(LinkCommands, PortsListsEight) {
    const auto run = runProgram("tallyline-cli", {"ports"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    for (int i = 1; i <= 8; ++i)
        EXPECT_NE(run.out.find("COM" + std::to_string(i) + "  "), std::string::npos);
    const auto json = runProgram("tallyline-cli", {"ports", "--json"});
    EXPECT_NE(json.out.find(R"("port": 8)"), std::string::npos);
}

TEST_F(LinkCommands, ADownloadIsWrittenAsOneQuotedItem) {
    const auto sim = instrument({"--count", "30"});
    const auto run = download(sim);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "");
    const std::string file = TemporaryFolder::read(out);
    EXPECT_EQ(file.substr(0, 60), "\"" + header + "\rT:");
    EXPECT_TRUE(file.ends_with("\x1a\"\r\n"));
    EXPECT_EQ(journal(), std::vector<std::string>{file.substr(1, file.size() - 4)});
    EXPECT_NE(journal(".log").at(0).find("state saved\n"), std::string::npos);
    EXPECT_NE(run.err.find("REMEMBER TO SAVE"), std::string::npos);
    EXPECT_EQ(runProgram("tallyline-cli", {"info", out}).status, 0);
}

TEST_F(LinkCommands, AFullMemoryOfType8Arrives) {
    const auto sim = instrument({"--type", "8"});
    const auto run = download(sim, {}, "PQX-K4-W");
    EXPECT_EQ(run.status, 0) << run.err;
    const auto info = runProgram("tallyline-cli", {"info", out, "--json"});
    EXPECT_NE(info.out.find(R"("count": 42966)"), std::string::npos) << info.out;
}

TEST_F(LinkCommands, AutomaticSelectionFindsTheOtherRate) {
    const auto sim = instrument({"--type", "8", "--count", "20"});
    const auto run = download(sim, {"--log"}, "11");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("No response. Changing settings. (Takes about 5 seconds)..."), std::string::npos);
    EXPECT_NE(run.err.find("Got 'KWT'."), std::string::npos);
}

TEST_F(LinkCommands, ASilentInstrumentEndsTheWait) {
    const auto sim = instrument({"--fault", "silent"});
    const auto run = download(sim, {"--wait", "0.3"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("No response in  0.3 seconds."), std::string::npos) << run.err;
    EXPECT_FALSE(std::filesystem::exists(out));
    EXPECT_TRUE(journal().empty());
}

TEST_F(LinkCommands, ADownloadWithErrorsIsKeptOnlyWithYes) {
    const auto sim = instrument({"--count", "30", "--fault", "damaged-line=2"});
    for (const std::vector<std::string>& no : std::vector<std::vector<std::string>>{{}, {"--no"}}) {
        const auto run = download(sim, no);
        EXPECT_EQ(run.status, 1);
        EXPECT_NE(run.err.find("No was taken: the download was not kept."), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("(ASCII value of first bad character = 65)"), std::string::npos) << run.err;
        EXPECT_FALSE(std::filesystem::exists(out));
    }
    EXPECT_EQ(download(sim, {"--yes"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(out));
}

TEST_F(LinkCommands, ALowBatteryIsWarnedOf) {
    const auto sim = instrument({"--count", "30", "--fault", "low-battery"});
    const auto run = download(sim);
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.err.find("LOW INSTRUMENT BATTERY"), std::string::npos);
    EXPECT_EQ(TemporaryFolder::read(out).substr(1, 3), "KWT");
}

TEST_F(LinkCommands, AnAdapterThatIsPulledOutIsToldAndWhatCameIsKept) {
    const auto sim = instrument({"--count", "100", "--fault", "gone=200"});
    const auto run = download(sim);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("has gone"), std::string::npos) << run.err;
    ASSERT_EQ(journal().size(), 1U);
    EXPECT_EQ(journal()[0].size(), 200U);
    EXPECT_NE(journal(".log").at(0).find("state interrupted\n"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(LinkCommands, WhatNoFileHoldsIsKeptAndSaid) {
    const std::string kept = "What was received is kept: the window offers it at its next start, "
                             "and tallyline-cli journal list names it.\n";
    for (const std::vector<std::string>& fault :
         std::vector<std::vector<std::string>>{{"--fault", "gone=200"}, {"--mode", "z"}}) {
        auto options = fault;
        options.insert(options.end(), {"--count", "100"});
        const auto run = download(instrument(options));
        EXPECT_EQ(run.status, 1);
        EXPECT_NE(run.err.find(kept), std::string::npos) << run.err;
    }
    const auto saved = download(instrument({"--count", "30"}));
    EXPECT_EQ(saved.err.find(kept), std::string::npos) << saved.err;
}

TEST_F(LinkCommands, TheDateOfTheFieldInitializationIsAnOption) {
    const auto sim = instrument({"--count", "30", "--fault", "bad-time", "--interval", "15"});
    const auto without = download(sim);
    EXPECT_EQ(without.status, 1);
    EXPECT_NE(without.err.find("Enter date and time of the field initialization"), std::string::npos);
    EXPECT_NE(without.err.find("(--initialized gives it)"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(out));
    EXPECT_EQ(download(sim, {"--initialized", "yesterday"}).status, 2);
    // 30 readings of 15 minutes are 7 h 30 min.
    const auto with = download(sim, {"--initialized", "03-14-24 10:00"});
    EXPECT_EQ(with.status, 0) << with.err;
    EXPECT_EQ(TemporaryFolder::read(out).substr(31, 14), "03-14-24 17:30");
}

TEST_F(LinkCommands, ASimulatedInstrumentBehindAComPortIsStarted) {
    setenv("XDG_CACHE_HOME", folder.path("cache").c_str(), 1);
    const std::string cache = folder.path("cache/Tallyline");
    std::filesystem::create_directories(folder.path("config/Tallyline"));
    const auto run = [&] { return runProgram("tallyline-cli", {"status", "--port", "3", "--type", "7"}); };
    EXPECT_EQ(run().status, 1);
    folder.write("config/Tallyline/Tallyline.ini", "[Comm]\nCOM3=" + cache + "/simulated-instrument\n");
    const auto status = run();
    EXPECT_EQ(status.status, 0) << status.err;
    EXPECT_NE(status.out.find(" Type: KWT    Serial Number 1234"), std::string::npos) << status.out;
    EXPECT_TRUE(std::filesystem::is_empty(cache));
}

TEST_F(LinkCommands, InterruptIsCancel) {
    const auto sim = instrument({"--fault", "silent"});
    testing::Background cli(::testing::binDir() + "/tallyline-cli",
                            {"download", "--port", sim.device(), "--type", "7", "-o", out});
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    EXPECT_EQ(cli.end(SIGINT), 1);
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(LinkCommands, APortThatIsNotThereIsRefused) {
    const auto run = runProgram("tallyline-cli",
                                {"download", "--port", folder.path("no-device"), "--type", "7", "-o", out});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "Communication port not valid.\r\nTry selecting a different COM port\r\n" +
                           folder.path("no-device") +
                           " is not there. Check that the adapter is plugged in.\n");
}

TEST_F(LinkCommands, APlaceThatCannotBeWrittenIsRefusedBeforeTheInstrumentIsAsked) {
    const auto sim = instrument({"--count", "30"});
    for (const char* command : {"download", "recover"}) {
        const auto run = runProgram("tallyline-cli", {command, "--port", sim.device(), "--type", "7", "-o",
                                                      folder.path("no/such/folder.dat")});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.err, "Path not found\n" + folder.path("no/such/folder.dat") +
                               " could not be written. Nothing was asked of the instrument.\n");
    }
    EXPECT_TRUE(journal(".log").empty());
}

TEST_F(LinkCommands, ADownloadWorksWithoutTheStandardStreams) {
    const auto sim = instrument({"--count", "30"});
    const std::string call = ::testing::binDir() + "/tallyline-cli download --port " + sim.device() +
                             " --type 7 -o " + out + " <&- >&- 2>&-";
    EXPECT_EQ(std::system(call.c_str()), 0);
    EXPECT_TRUE(TemporaryFolder::read(out).ends_with("\x1a\"\r\n"));
    EXPECT_EQ(journal().at(0).substr(0, header.size()), header);
}

TEST_F(LinkCommands, AModeLetterThatCannotBeReadIsAnOption) {
    const auto sim = instrument({"--count", "30", "--mode", "z"});
    const auto without = download(sim);
    EXPECT_EQ(without.status, 1);
    EXPECT_NE(without.err.find("The mode letter of the recording could not be read ('z')."),
              std::string::npos)
        << without.err;
    EXPECT_NE(without.err.find("(--mode gives it)"), std::string::npos);
    EXPECT_EQ(download(sim, {"--mode", "m"}).status, 2);
    EXPECT_EQ(download(sim, {"--mode", "b"}).status, 0);
    EXPECT_EQ(TemporaryFolder::read(out).substr(1, 4), "KWTb");
}

TEST_F(LinkCommands, TheJournalIsListedShownSavedAndDropped) {
    const auto sim = instrument({"--count", "30", "--fault", "damaged-line=2"});
    ASSERT_EQ(download(sim, {"--at", "03-15-24 14:02"}).status, 1);
    const auto call = [](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "journal");
        return runProgram("tallyline-cli", arguments);
    };
    const auto list = call({"list", "--json"});
    EXPECT_EQ(list.status, 0) << list.err;
    for (const std::string& part :
         {std::string(R"("time": "14:02  Mar 15, 24")"), "\"port\": \"" + sim.device() + "\"",
          std::string(R"("type": 7)"), std::string(R"("command": "download")"),
          std::string(R"("state": "refused")"), "\"characters\": " + std::to_string(journal().at(0).size()),
          std::string(R"("serial": "1234")")})
        EXPECT_NE(list.out.find(part), std::string::npos) << part << "\n" << list.out;
    const std::string line = call({"list"}).out;
    const std::string id = line.substr(0, line.find(' '));
    const auto show = call({"show", id});
    EXPECT_EQ(show.status, 0) << show.err;
    EXPECT_EQ(show.out, journal().at(0));

    const auto refused = call({"save", id, "-o", out});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("(ASCII value of first bad character = 65)"), std::string::npos)
        << refused.err;
    EXPECT_FALSE(std::filesystem::exists(out));
    EXPECT_EQ(call({"save", id, "-o", out, "--yes"}).status, 0);
    EXPECT_EQ(TemporaryFolder::read(out), "\"" + journal().at(0) + "\"\r\n");
    EXPECT_NE(call({"list", "--json"}).out.find(R"("state": "saved")"), std::string::npos);

    EXPECT_EQ(call({"drop", id}).status, 0);
    EXPECT_NE(call({"list", "--json"}).out.find(R"("state": "dropped")"), std::string::npos);
    for (const char* command : {"show", "drop"}) {
        const auto none = call({command, "20240315-140500-000-1"});
        EXPECT_EQ(none.status, 1);
        EXPECT_NE(none.err.find("There is no reception 20240315-140500-000-1"), std::string::npos);
    }
    EXPECT_EQ(call({"show"}).status, 2);
    EXPECT_EQ(call({}).status, 2);
}

TEST_F(LinkCommands, AnEmptyJournalIsAnEmptyList) {
    EXPECT_EQ(runProgram("tallyline-cli", {"journal", "list", "--json"}).out, "[]\n");
    EXPECT_EQ(runProgram("tallyline-cli", {"journal", "list"}).out, "");
}

TEST_F(LinkCommands, UnknownPortsAndTypesAreWrongUsage) {
    for (const char* port : {"0", "9", "-1", "x", "11"})
        EXPECT_EQ(
            runProgram("tallyline-cli", {"download", "--port=" + std::string(port), "--type", "7", "-o", out})
                .status,
            2)
            << port;
    for (const char* type : {"12", "-1", "nothing"})
        EXPECT_EQ(
            runProgram("tallyline-cli", {"status", "--port", "1", "--type=" + std::string(type)}).status, 2)
            << type;
    EXPECT_EQ(runProgram("tallyline-cli", {"download", "--port", "1", "--type", "7"}).status, 2);
    EXPECT_EQ(runProgram("tallyline-cli", {"download", "--port", "1", "-o", out}).status, 2);
}

TEST_F(LinkCommands, StatusPrintsTheResult) {
    const auto sim = instrument({"--mode", "H"});
    const auto run = runProgram("tallyline-cli", {"status", "--port", sim.device(), "--type", "7"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, " Type: KWT    Serial Number 1234\n"
                       " Mode setting:  Min/Max/Avg 5 min Cont Time On: 14:05  Mar 15, 24 (03-15-24 14:05)"
                       "     Condition: Stopped\nVbatt = 3.806 volts\n");
}

TEST_F(LinkCommands, StatusPrintsJson) {
    const auto sim = instrument({"--mode", "c", "--fault", "low-battery"});
    const auto run = runProgram("tallyline-cli", {"status", "--port", sim.device(), "--type", "7", "--json"});
    EXPECT_EQ(run.status, 0) << run.err;
    for (const char* part :
         {R"("type": "KWT")", R"("serial": "1234")", R"("state": "Running")", R"("mode": "Average")",
          R"("interval": 1)", R"("whenFull": "Cont")", R"("timeOn": "14:05  Mar 15, 24")",
          R"("vbatt": 3.806)", R"("lowBattery": true)"})
        EXPECT_NE(run.out.find(part), std::string::npos) << part << "\n" << run.out;
}

TEST_F(LinkCommands, TimesAreThoseOfTheCall) {
    const auto sim = instrument({"--count", "30"});
    const auto run = download(sim, {"--at", "03-15-24 14:02"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Instrument clock: 3 min ahead of this computer's"), std::string::npos) << run.err;
    EXPECT_NE(journal(".log").at(0).find("time 03-15-24 14:02\n"), std::string::npos);
}

} // namespace
} // namespace tally
