// SPDX-License-Identifier: GPL-3.0-or-later
// The commands init and recover, run as a script runs them, on a simulated instrument.
#include "Started.h"
#include "support/Process.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tally {
namespace {

using namespace testing;

class InstrumentControl : public ::testing::Test {
protected:
    InstrumentControl() {
        // A journal of its own.
        setenv("XDG_DATA_HOME", folder.path("data").c_str(), 1);
        setenv("XDG_CACHE_HOME", folder.path("cache").c_str(), 1);
    }
    std::vector<std::string> init(std::vector<std::string> more) const {
        std::vector<std::string> arguments = {"init", "--port",         port,         "--type", "7",
                                              "--at", "03-15-24 14:05", "--interval", "1",      "--record",
                                              "mma",  "--full",         "stop"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    }
    std::vector<std::string> recover(const std::string& type = "7") const {
        return {"recover", "--port", port, "--type", type, "-o", output};
    }

    TemporaryFolder folder;
    std::string port = folder.path("instrument");
    std::string output = folder.path("out.dat");
};

TEST_F(InstrumentControl, InitReportsWhatTheInstrumentReadsBack) {
    StartedInstrument instrument(port, {"--type", "7", "--count", "20", "--record", folder.path("log")});
    const auto run = runProgram("tallyline-cli", init({"--yes"}));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "Initialization complete. New settings as read back from instrument:\n\n"
                       " Type: KWT           Serial Number 1234\n"
                       " Mode setting:     Min/Max/Avg  Stop     1  min interval\n"
                       " Time                     14:05 Mar 15, 24\n\n"
                       "       RETURN THE SWITCH TO 'STANDBY'   \n"
                       "           OR REMOVE THE CABLE NOW       \n\n");
    EXPECT_NE(run.err.find("Initstring=03-15-24 14:05 f1"), std::string::npos);
    const std::string log = TemporaryFolder::read(folder.path("log"));
    EXPECT_NE(log.find("received \"\\x09\""), std::string::npos) << log;
    EXPECT_NE(log.find("received \"03-15-24 14:05 f1\\r\""), std::string::npos) << log;
}

TEST_F(InstrumentControl, InitWithoutYesWarnsAndSendsNothing) {
    StartedInstrument instrument(port, {"--type", "7", "--count", "20", "--record", folder.path("log")});
    const auto run = runProgram("tallyline-cli", init({}));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("     Warning! - This Function will clear\n"
                           "    All previous Data from the instrument\n"
                           "Select 'OK' to continue, or  'CANCEL' to abort\n"),
              std::string::npos);
    EXPECT_NE(run.err.find("No downloads are known on this computer."), std::string::npos);
    EXPECT_EQ(TemporaryFolder::read(folder.path("log")).find("received"), std::string::npos);
}

TEST_F(InstrumentControl, InitNamesTheDownloadsOfTheJournal) {
    StartedInstrument instrument(port, {"--type", "7", "--count", "20", "--serial", "0417"});
    const auto download =
        runProgram("tallyline-cli", {"download", "--port", port, "--type", "7", "-o", output});
    ASSERT_EQ(download.status, 0) << download.err;
    const auto run = runProgram("tallyline-cli", init({}));
    EXPECT_NE(run.err.find("Last downloads:  0417 ("), std::string::npos) << run.err;
    EXPECT_NE(run.err.find("): saved\n"), std::string::npos) << run.err;
}

TEST_F(InstrumentControl, AnInstrumentWithoutModesGetsTheBlankOne) {
    StartedInstrument instrument(port, {"--type", "1", "--count", "20", "--record", folder.path("log")});
    auto arguments = init({"--yes"});
    arguments[4] = "1";
    const auto run = runProgram("tallyline-cli", arguments);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("HVN 40 or 80 only have 15 min average, continuoue mode"), std::string::npos);
    EXPECT_NE(run.out.find("  Average    Cont     15  min interval"), std::string::npos);
    EXPECT_NE(TemporaryFolder::read(folder.path("log")).find("received \"03-15-24 14:05  0\\r\""),
              std::string::npos);
}

TEST_F(InstrumentControl, InitWithWrongArgumentsIsWrongUsage) {
    const std::vector<std::vector<std::string>> wrong = {
        {"init", "--port", port, "--type", "7", "--interval", "10", "--record", "avg", "--full", "loop",
         "--yes"},
        {"init", "--port", port, "--type", "7", "--interval", "5", "--record", "all", "--full", "loop",
         "--yes"},
        {"init", "--port", port, "--type", "7", "--interval", "5", "--record", "avg", "--full", "x", "--yes"},
        {"init", "--port", port, "--type", "7", "--record", "avg", "--full", "loop", "--yes"},
        {"init", "--port", port, "--type", "12", "--interval", "5", "--record", "avg", "--full", "loop",
         "--yes"},
        {"init", "--port", "9", "--type", "7", "--interval", "5", "--record", "avg", "--full", "loop",
         "--yes"},
        {"recover", "--port", port, "--type", "none", "-o", output},
        {"recover", "--port", port, "--type", "7"}};
    for (const auto& arguments : wrong) {
        const auto run = runProgram("tallyline-cli", arguments);
        EXPECT_EQ(run.status, 2) << run.err;
        EXPECT_NE(run.err.find("Usage: tallyline-cli"), std::string::npos);
        EXPECT_EQ(run.out, "");
    }
}

TEST_F(InstrumentControl, InitIsRefusedWhileADownloadOfTheInstrumentIsNotSaved) {
    StartedInstrument instrument(port, {"--type", "7", "--count", "20", "--serial", "0417", "--fault",
                                        "damaged-line=1", "--record", folder.path("log")});
    const auto download =
        runProgram("tallyline-cli", {"download", "--port", port, "--type", "7", "-o", output});
    ASSERT_EQ(download.status, 1) << download.err;
    const auto refused = runProgram("tallyline-cli", init({"--yes"}));
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_NE(refused.err.find("A download of this instrument is not saved yet:"), std::string::npos)
        << refused.err;
    EXPECT_EQ(TemporaryFolder::read(folder.path("log")).find("received"), std::string::npos);
    const auto erased = runProgram("tallyline-cli", init({"--yes", "--erase-unsaved"}));
    EXPECT_EQ(erased.status, 0) << erased.err;
}

TEST_F(InstrumentControl, InitAndRecoverCanBoundTheirWait) {
    StartedInstrument instrument(port, {"--type", "7", "--count", "20", "--fault", "silent"});
    const auto initialized = runProgram("tallyline-cli", init({"--yes", "--wait", "0.3"}));
    EXPECT_EQ(initialized.status, 1);
    EXPECT_NE(initialized.err.find("No response in  0.3 seconds."), std::string::npos) << initialized.err;
    auto arguments = recover();
    arguments.insert(arguments.end(), {"--wait", "0.3"});
    const auto recovered = runProgram("tallyline-cli", arguments);
    EXPECT_EQ(recovered.status, 1);
    EXPECT_NE(recovered.err.find("No response in  0.3 seconds."), std::string::npos) << recovered.err;
}

TEST_F(InstrumentControl, APortThatIsNotThereIsRefused) {
    const auto run = runProgram("tallyline-cli", init({"--yes"}));
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("Communication port not valid.\r\nTry selecting a different COM port"),
              std::string::npos)
        << run.err;
    EXPECT_EQ(runProgram("tallyline-cli", recover()).status, 1);
}

TEST_F(InstrumentControl, InterruptingInitLeavesTheInstrumentAlone) {
    StartedInstrument instrument(
        port, {"--type", "7", "--count", "20", "--fault", "no-answer", "--record", folder.path("log")});
    Started program("tallyline-cli", init({"--yes"}));
    ASSERT_TRUE(program.says("IMode$=T")) << program.said();
    ASSERT_TRUE(instrument.says("The command to initialise has come.")) << instrument.said();
    program.interrupt();
    EXPECT_EQ(program.end(), 1);
    EXPECT_NE(program.said().find("Cancelled"), std::string::npos) << program.said();
    EXPECT_EQ(TemporaryFolder::read(folder.path("log")).find("03-15-24 14:05 f1"), std::string::npos);
}

TEST_F(InstrumentControl, RecoverWritesTheFileWithTheStopTime) {
    StartedInstrument instrument(port, {"--type", "7", "--count", "30", "--battery-failed", "--interval", "1",
                                        "--full", "stop", "--clock", "03-15-24 14:05"});
    const auto run = runProgram("tallyline-cli", recover());
    EXPECT_EQ(run.status, 0) << run.err;
    const auto info = runProgram("tallyline-cli", {"info", output, "--json"});
    EXPECT_EQ(info.status, 0) << info.err;
    EXPECT_NE(info.out.find(R"("count": 30)"), std::string::npos) << info.out;
    // The instrument failed 30 readings of one minute after 13:35.
    EXPECT_NE(run.err.find("Start Time 13:35  Mar 15, 24"), std::string::npos) << run.err;
    EXPECT_NE(run.err.find("  Downloaded (stopped):  14:05  Mar 15, 24"), std::string::npos) << run.err;
    EXPECT_NE(info.out.find(R"("headerTime": "14:05  Mar 15, 24")"), std::string::npos) << info.out;
}

TEST_F(InstrumentControl, TheJournalJudgesARecoverAsTheCommandDoes) {
    {
        StartedInstrument instrument(port, {"--type", "10", "--battery-failed"});
        EXPECT_EQ(runProgram("tallyline-cli", recover("10")).status, 1);
    }
    const std::string list = runProgram("tallyline-cli", {"journal", "list"}).out;
    EXPECT_NE(list.find("  recover  received  "), std::string::npos) << list;
    const std::string id = list.substr(0, list.find(' '));
    const auto refused = runProgram("tallyline-cli", {"journal", "save", id, "-o", output});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("  CANNOT DETERMINE STOPPED TIME "), std::string::npos) << refused.err;
    EXPECT_EQ(runProgram("tallyline-cli", {"info", output}).status, 1);
    EXPECT_EQ(runProgram("tallyline-cli", {"journal", "save", id, "-o", output, "--yes"}).status, 0);
    EXPECT_EQ(runProgram("tallyline-cli", {"info", output}).status, 0);
}

TEST_F(InstrumentControl, RecoverRefusesAFullContinuousMemory) {
    StartedInstrument instrument(port, {"--type", "10", "--battery-failed"});
    const auto run = runProgram("tallyline-cli", recover("10"));
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("    CONTINUOUS DATA; NOT RECOVERABLE     \n  CANNOT DETERMINE STOPPED TIME "),
              std::string::npos)
        << run.err;
    EXPECT_EQ(TemporaryFolder::read(output), "");
}

TEST_F(InstrumentControl, RecoverRefusesAutomaticSelection) {
    StartedInstrument instrument(port, {"--type", "7"});
    const auto run = runProgram("tallyline-cli", recover("11"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.find("The 'Recover' feature is not implemented for the case of the \r\n"), 0U)
        << run.err;
    EXPECT_EQ(instrument.said().find("opened"), std::string::npos);
}

TEST_F(InstrumentControl, InterruptingRecoverWritesNoFile) {
    StartedInstrument instrument(port, {"--type", "7", "--fault", "silent", "--battery-failed"});
    Started program("tallyline-cli", recover());
    ASSERT_TRUE(program.says("  in use")) << program.said();
    program.interrupt();
    EXPECT_EQ(program.end(), 1);
    EXPECT_EQ(TemporaryFolder::read(output), "");
}

TEST_F(InstrumentControl, AnAdapterThatIsPulledOutIsTold) {
    StartedInstrument instrument(port, {"--type", "7", "--battery-failed", "--fault", "gone=500"});
    const auto run = runProgram("tallyline-cli", recover());
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(port), std::string::npos) << run.err;
    EXPECT_EQ(TemporaryFolder::read(output), "");
}

} // namespace
} // namespace tally
