// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever had arrived stays, wherever a download ends: the program is killed, the adapter is pulled out.
#include "Child.h"
#include "link/Rescue.h"
#include "platform/JournalFolder.h"
#include "platform/SafeFile.h"
#include "support/Background.h"
#include "support/Places.h"
#include "support/Process.h"

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace tally {
namespace {

using testing::Background;
using testing::BackgroundInstrument;
using testing::TemporaryFolder;

const std::string bin = ::testing::binDir();

struct KillTest : ::testing::Test {
    TemporaryFolder folder;
    SafeFile files;
    std::string place = folder.path("data/Tallyline/journal");
    std::string whole; // what the instrument sends when nothing goes wrong
    std::uint32_t seed = 20240315;

    void SetUp() override {
        setenv("XDG_DATA_HOME", folder.path("data").c_str(), 1);
        setenv("XDG_CONFIG_HOME", folder.path("config").c_str(), 1);
        BackgroundInstrument sim(bin, options({}));
        Background cli(bin + "/tallyline-cli", download(sim, "whole.dat"));
        ASSERT_EQ(cli.status(), 0);
        whole = TemporaryFolder::read(folder.path("whole.dat"));
        whole = whole.substr(1, whole.size() - 4);
        std::filesystem::remove_all(place);
    }
    static std::vector<std::string> options(const std::vector<std::string>& fault) {
        std::vector<std::string> all = {"--count", "300", "--clock", "03-15-24 14:05", "--stopped"};
        all.insert(all.end(), fault.begin(), fault.end());
        return all;
    }
    std::vector<std::string> download(const BackgroundInstrument& sim, const std::string& name) const {
        return {"download", "--port", sim.device(), "--type", "7", "-o", folder.path(name)};
    }
    std::size_t randomByte() {
        seed = seed * 1664525U + 1013904223U;
        return 1 + (seed >> 8) % (whole.size() - 2);
    }
    // The bytes of the only reception so far.
    std::uintmax_t received() const {
        if (std::filesystem::exists(place))
            for (const auto& entry : std::filesystem::directory_iterator(place))
                if (entry.path().extension() == ".raw")
                    return withoutFilling(TemporaryFolder::read(entry.path().string())).size();
        return 0;
    }
    bool waitUntilReceived(std::size_t count) const {
        for (int i = 0; i < 2000 && received() < count; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return received() == count;
    }
    // The reception that the next start offers; the journal is emptied for the next round.
    std::string offered() {
        const JournalFolder journal(place, files);
        const auto entries = unsavedReceptions(journal);
        EXPECT_EQ(entries.size(), 1U);
        if (entries.size() != 1)
            return "not one reception";
        EXPECT_EQ(entries[0].state, JournalState::interrupted);
        std::string text = journal.text(entries[0].id);
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(place)) {
            EXPECT_TRUE(entry.path().extension() == ".raw" || entry.path().extension() == ".log");
            ++count;
        }
        EXPECT_EQ(count, 2);
        std::filesystem::remove_all(place);
        return text;
    }
};

TEST_F(KillTest, TheProgramIsKilledAtFiftyBytes) {
    for (int i = 0; i < 50; ++i) {
        const std::size_t count = randomByte();
        BackgroundInstrument sim(bin, options({"--fault", "stall=" + std::to_string(count) + ":60000"}));
        Background cli(bin + "/tallyline-cli", download(sim, "killed.dat"));
        ASSERT_TRUE(waitUntilReceived(count)) << count << " " << received();
        EXPECT_EQ(cli.end(SIGKILL), 128 + SIGKILL);
        EXPECT_EQ(offered(), whole.substr(0, count));
        EXPECT_FALSE(std::filesystem::exists(folder.path("killed.dat")));
    }
}

TEST_F(KillTest, TheProgramIsKilledWhileCharactersCome) {
    for (int i = 0; i < 10; ++i) {
        Background sim(bin + "/tallyline-sim", {"--count", "300", "--clock", "03-15-24 14:05", "--stopped",
                                                "--plug", "0.05", "--quiet", "--with-parent"});
        const std::string device = sim.line().substr(6);
        Background cli(bin + "/tallyline-cli",
                       {"download", "--port", device, "--type", "7", "-o", folder.path("killed.dat")});
        const std::size_t maximum = randomByte();
        for (int k = 0; k < 5000 && received() < maximum; ++k)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        cli.end(SIGKILL);
        const std::string kept = offered();
        EXPECT_GE(kept.size(), maximum);
        EXPECT_EQ(kept, whole.substr(0, kept.size()));
    }
}

TEST_F(KillTest, TheAdapterIsPulledOutAtFiftyBytes) {
    for (int i = 0; i < 50; ++i) {
        const std::size_t count = randomByte();
        BackgroundInstrument sim(bin, options({"--fault", "gone=" + std::to_string(count)}));
        Background cli(bin + "/tallyline-cli", download(sim, "pulled.dat"));
        EXPECT_EQ(cli.status(), 1);
        EXPECT_EQ(offered(), whole.substr(0, count));
        EXPECT_FALSE(std::filesystem::exists(folder.path("pulled.dat")));
    }
}

TEST_F(KillTest, ThePortOpensAgainAfterAKill) {
    BackgroundInstrument sim(bin, options({}));
    Background first(bin + "/tallyline-cli", download(sim, "first.dat"));
    std::this_thread::sleep_for(std::chrono::milliseconds(40));
    first.end(SIGKILL);
    // The simulated instrument takes a killed user's exclusive use back after a moment.
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    Background second(bin + "/tallyline-cli", download(sim, "second.dat"));
    EXPECT_EQ(second.status(), 0);
    EXPECT_EQ(TemporaryFolder::read(folder.path("second.dat")), "\"" + whole + "\"\r\n");
}

TEST_F(KillTest, AnOrdinaryUserDownloadsToo) {
    const TemporaryFolder own;
    chmod(own.path("").c_str(), 0777);
    const std::string expected = "\"" + whole + "\"\r\n";
    const std::string said = testing::asOrdinaryUser([&]() -> std::string {
        setenv("HOME", own.path("home").c_str(), 1);
        setenv("XDG_DATA_HOME", own.path("data").c_str(), 1);
        setenv("XDG_CONFIG_HOME", own.path("config").c_str(), 1);
        BackgroundInstrument sim(bin, options({}));
        Background cli(bin + "/tallyline-cli",
                       {"download", "--port", sim.device(), "--type", "7", "-o", own.path("out.dat")});
        return std::to_string(cli.status());
    });
    EXPECT_EQ(said, "0");
    EXPECT_EQ(TemporaryFolder::read(own.path("out.dat")), expected);
}

} // namespace
} // namespace tally
