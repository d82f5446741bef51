// SPDX-License-Identifier: GPL-3.0-or-later
// What the journal of downloads keeps when the program is killed, the cable pulled out, the disk slow, and
// when many programs begin at once.
#include "Desk.h"

#include "link/Rescue.h"
#include "platform/JournalFolder.h"
#include "platform/SafeFile.h"
#include "support/Background.h"
#include "support/Places.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>
#include <sstream>
#include <thread>

namespace tally::faults {

namespace {

using testing::Background;
using testing::TemporaryFolder;
namespace fs = std::filesystem;

std::string program(const char* name) {
    return ::testing::binDir() + "/" + name;
}

void sleepFor(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// A user's folders of their own, empty.
std::string freshHome(const Desk& desk) {
    const std::string data = desk.folder.path("data");
    fs::remove_all(data);
    setenv("XDG_DATA_HOME", data.c_str(), 1);
    setenv("XDG_CONFIG_HOME", desk.folder.path("config").c_str(), 1);
    return data + "/Tallyline/journal";
}

// An instrument at 115,200 baud with the longest recording; `speed` 0 sends as fast as it is read.
std::unique_ptr<Background> instrument(const std::string& speed, std::string& device,
                                       const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"--type",    "8",       "--clock",      "03-15-24 14:05",
                                          "--stopped", "--speed", speed,          "--plug",
                                          "0.05",      "--quiet", "--with-parent"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    auto started = std::make_unique<Background>(program("tallyline-sim"), arguments);
    device = started->line().substr(6);
    return started;
}

std::vector<std::string> download(const Desk& desk, const std::string& device) {
    return {"download", "--port", device, "--type", "8", "-o", desk.folder.path("out.dat")};
}

// The text of the one reception that is offered; empty when there is not exactly one.
std::string offered(const std::string& place) {
    SafeFile files;
    const JournalFolder journal(place, files);
    const auto entries = unsavedReceptions(journal);
    return entries.size() == 1 ? journal.text(entries[0].id) : std::string();
}

// Kills a download at a random moment; gives how many characters it had read that its journal does not hold.
std::int64_t lostAtKill(Desk& desk, const std::string& speed, const std::string& rule, int from, int to) {
    const std::string place = freshHome(desk);
    fs::remove(desk.folder.path("out.dat"));
    std::string device;
    const auto sim = instrument(speed, device);
    const Fault fault(desk, rule, ".raw");
    Background cli(program("tallyline-cli"), download(desk, device));
    for (int i = 0; i < 5000 && fault.characters() == 0; ++i)
        sleepFor(2);
    sleepFor(desk.roll(from, to));
    cli.end(SIGKILL);
    const auto read = static_cast<std::int64_t>(fault.characters());
    if (read == 0)
        desk.wrong("nothing was received before the kill");
    const auto kept = static_cast<std::int64_t>(offered(place).size());
    // It may have been saved before the kill; and a kill may come before a read that was kept is counted.
    const bool saved = kept == 0 && fs::exists(desk.folder.path("out.dat"));
    return saved ? 0 : std::max<std::int64_t>(read - kept, 0);
}

void killSeries(Desk& desk, const std::string& name, int trials, const std::string& speed,
                const std::string& rule, std::int64_t allowed, int to) {
    std::int64_t worst = 0;
    std::int64_t all = 0;
    int losing = 0;
    for (int i = 0; i < trials; ++i) {
        const std::int64_t lost = lostAtKill(desk, speed, rule, 1, to);
        worst = std::max(worst, lost);
        all += lost;
        losing += lost != 0 ? 1 : 0;
        if (lost > allowed)
            desk.wrong(name + ": " + std::to_string(lost) + " characters lost");
    }
    desk.figure(name, trials,
                std::to_string(losing) + " lost something, " + std::to_string(all) + " characters in all, " +
                    std::to_string(worst) + " at worst");
}

int countOf(const Desk& desk, int brief, int whole) {
    return desk.isBrief ? brief : whole;
}

// Files of receptions whose log is missing: nobody would ever find them again.
int orphans(const std::string& place) {
    int found = 0;
    for (const auto& entry : fs::directory_iterator(place)) {
        fs::path log = entry.path();
        found += fs::exists(log.replace_extension(".log")) ? 0 : 1;
    }
    return found;
}

// Eight processes at once, each beginning receptions; what they say is unsaved must be offered afterwards.
void startSeries(Desk& desk, const std::string& name, int starts, const std::string& rule) {
    constexpr int atOnce = 8;
    const std::string place = freshHome(desk);
    std::set<std::string> unsaved;
    {
        const Fault fault(desk, rule, place);
        std::vector<std::unique_ptr<Background>> all;
        for (int i = 0; i < atOnce; ++i)
            all.push_back(std::make_unique<Background>(
                program("tallyline_faults"),
                std::vector<std::string>{"--inside", "starts", place, std::to_string(starts / atOnce)}));
        for (const auto& one : all) {
            for (std::string line; !(line = one->line()).empty();)
                if (line.rfind("unsaved ", 0) == 0)
                    unsaved.insert(line.substr(8));
                else
                    desk.wrong(name + ": " + line);
            if (one->status() != 0)
                desk.wrong(name + ": ended with " + std::to_string(one->status()));
        }
    }
    SafeFile files;
    const JournalFolder journal(place, files);
    std::size_t kept = 0;
    for (const JournalEntry& entry : unsavedReceptions(journal))
        kept += unsaved.count(entry.id);
    const int lost = orphans(place);
    if (lost != 0 || kept != unsaved.size())
        desk.wrong(name);
    desk.figure(name, starts,
                std::to_string(lost) + " orphans, " + std::to_string(unsaved.size() - kept) +
                    " unsaved ones lost");
}

} // namespace

void tryKills(Desk& desk) {
    // What a pseudo-terminal gives at once.
    constexpr std::int64_t oneRead = 4096;
    killSeries(desk, "killed at 115,200 baud", countOf(desk, 3, 200), "1", "write 0 after 0", 0, 1200);
    killSeries(desk, "killed at 115,200 baud, 100 ms a write", countOf(desk, 3, 200), "1",
               "write 0 after 100;datasync 0 before 100", 0, 1200);
    killSeries(desk, "killed in a burst, 100 ms a write", countOf(desk, 3, 100), "0",
               "write 0 after 100;datasync 0 before 100", oneRead, 200);
    killSeries(desk, "killed in a burst, 100 ms before each write", countOf(desk, 3, 100), "0",
               "write 0 before 100;datasync 0 before 100", oneRead, 200);
    // Files that cannot be mapped are written; a kill may come between a read and its write.
    killSeries(desk, "the same where no file can be mapped", countOf(desk, 3, 100), "0",
               "allocate 0 error " + std::to_string(EOPNOTSUPP) + ";write 0 before 100", oneRead, 200);
}

void tryUnplugging(Desk& desk) {
    const int trials = countOf(desk, 3, 100);
    int bad = 0;
    for (int i = 0; i < trials; ++i) {
        const std::string place = freshHome(desk);
        const auto count = static_cast<std::size_t>(desk.roll(1, 20000));
        std::string device;
        const auto sim = instrument("0", device, {"--fault", "gone=" + std::to_string(count)});
        const auto done = testing::runProgram("tallyline-cli", download(desk, device));
        const bool right = done.status == 1 && !done.err.empty() && offered(place).size() == count;
        if (!right)
            desk.wrong("unplugged after " + std::to_string(count) + ": status " +
                       std::to_string(done.status) + ", " + std::to_string(offered(place).size()) + " kept");
        bad += right ? 0 : 1;
    }
    desk.figure("adapter pulled out", trials, std::to_string(bad) + " lost something");
}

void trySlowDisk(Desk& desk) {
    const int trials = countOf(desk, 1, 5);
    int worst = 0;
    constexpr int maximumPause = 100;
    for (int i = 0; i < trials; ++i) {
        const std::string place = freshHome(desk);
        const Fault fault(desk, "datasync 0 before 700;sync 0 before 700", place);
        const auto done = testing::runProgram("tallyline_faults", {"--inside", "pause", place});
        const int longest = std::atoi(done.out.c_str());
        if (done.status != 0 || done.out.empty() || fault.struck() == 0)
            desk.wrong("slow disk: " + done.err);
        if (longest > maximumPause)
            desk.wrong("slow disk: a pause of " + std::to_string(longest) + " ms");
        worst = std::max(worst, longest);
    }
    desk.figure("reception with 700 ms a sync", trials, "longest pause " + std::to_string(worst) + " ms");
}

void tryParallelStarts(Desk& desk) {
    startSeries(desk, "eight programs beginning at once", countOf(desk, 400, 5000), "");
    startSeries(desk, "the same on a disk without locks", countOf(desk, 80, 800),
                "lock 0 error " + std::to_string(ENOLCK));
}

} // namespace tally::faults
