// SPDX-License-Identifier: GPL-3.0-or-later
// Every writer of files against every stage at which a disk can fail or the program can be killed.
#include "Desk.h"

#include "support/Background.h"
#include "support/Places.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

namespace tally::faults {

namespace {

using testing::Finished;
using testing::runProgram;
using testing::TemporaryFolder;
namespace fs = std::filesystem;

struct Stage {
    std::string name;
    std::string rule;
    bool kills = false;
};

const std::vector<Stage> stages = {
    {"the disk is full at the first write", "write 1 error " + std::to_string(ENOSPC)},
    {"the quota is used up", "write 1 error " + std::to_string(EDQUOT)},
    {"an error while writing", "write 1 error " + std::to_string(EIO)},
    {"the sync finds the disk full", "datasync 1 error " + std::to_string(ENOSPC)},
    {"the sync finds an error", "datasync 1 error " + std::to_string(EIO)},
    {"the first sync of the folder fails", "sync 1 error " + std::to_string(EIO)},
    {"the second sync of the folder fails", "sync 2 error " + std::to_string(EIO)},
    {"the renaming is refused", "rename 0 error " + std::to_string(EACCES)},
    {"killed before the write", "write 1 kill", true},
    {"killed after the write", "write 1 killafter", true},
    {"killed at the sync", "datasync 1 kill", true},
    {"killed before the renaming", "rename 1 kill", true},
    {"killed after the renaming", "rename 1 killafter", true},
};

struct Writer {
    std::string name;
    std::string output; // in its folder
    std::vector<std::string> arguments;
    std::string old = "the old file\n"; // nothing: what the writer wrote the time before
    std::string program = "tallyline-cli";
    bool tellsByStatus = true; // the settings only say it
    std::string below = {};    // the folder of its file, below the one of all
};

// An instrument with a short recording, sent as fast as it is read.
class Instrument {
public:
    explicit Instrument(const std::vector<std::string>& more)
        : program_(::testing::binDir() + "/tallyline-sim", options(more)),
          device_(program_.line().substr(std::string("READY ").size())) {}
    const std::string& device() const { return device_; }

private:
    static std::vector<std::string> options(const std::vector<std::string>& more) {
        std::vector<std::string> all = {"--type",         "7",         "--count",      "30", "--clock",
                                        "03-15-24 14:05", "--stopped", "--speed",      "0",  "--plug",
                                        "0.05",           "--quiet",   "--with-parent"};
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }

    testing::Background program_;
    std::string device_;
};

// What is received and saved; the recover keeps its text in a file of its own besides.
void addReceivers(std::vector<Writer>& all, const std::string& in, const Instrument& sound,
                  const Instrument& failed) {
    const auto receive = [](const std::string& command, const Instrument& from, const std::string& to) {
        return std::vector<std::string>{command,  "--port", from.device(), "--type", "7",
                                        "--wait", "5",      "-o",          to};
    };
    all.push_back({"download", "received.dat", receive("download", sound, in + "/received.dat")});
    all.push_back({"recover", "received.dat", receive("recover", failed, in + "/received.dat")});
    Writer temporary = {"the file that a recover reads back", "temp.dat",
                        receive("recover", failed, in + "/received.dat")};
    temporary.below = "/cache/Tallyline";
    all.push_back(temporary);
}

std::vector<Writer> writers(const std::string& in) {
    const std::string data = in + "/feeder.dat";
    const std::string oldNotes = TemporaryFolder::read(::testing::sourceDir() + "/samples/feeder-15min.not");
    const std::string feeder = "Maple:" + data + "," + data + "," + data;
    return {
        {"data file", "out.dat", {"save", data, "-o", in + "/out.dat"}},
        {"forced readings", "out.dat", {"force", data, "--value", "12", "-o", in + "/out.dat"}},
        {"notes", "feeder.not", {"notes", data, "--location", "New place"}, oldNotes},
        {"CSV export", "", {"export", "csv", data, "--dir", in}},
        {"metering export",
         "",
         {"export", "metering", data, "--id", "ABCDEFGHIJKLMN", "--volts", "480", "--dir", in}},
        {"picture, PNG", "out.png", {"plot", data, "-o", in + "/out.png"}},
        {"picture, PDF", "out.pdf", {"plot", data, "-o", in + "/out.pdf"}},
        {"picture, SVG", "out.svg", {"plot", data, "-o", in + "/out.svg"}},
        {"survey report",
         "out.pdf",
         {"survey", "--station", "N", "--feeder", feeder, "--print", in + "/out.pdf"}},
        {"table export, CSV", "out.csv", {"export", "table", data, "-o", in + "/out.csv"}},
        {"table export, XLSX", "out.xlsx", {"export", "table", data, "-o", in + "/out.xlsx"}},
        {"GridLAB-D export", "out.player", {"export", "gridlabd", data, "-o", in + "/out.player"}},
        {"load study, PDF", "out.pdf", {"study", data, "-o", in + "/out.pdf"}},
        {"load study, XLSX", "out.xlsx", {"study", data, "-o", in + "/out.xlsx"}},
        {"chart file",
         "out.chd",
         {"--inside", "chart", in + "/out.chd"},
         "the old file\n",
         "tallyline_faults"},
        {"checked text", "out.txt", {"check", in + "/received.txt", "-o", in + "/out.txt"}},
        {"settings", "out.ini", {"--inside", "settings", in + "/out.ini"}, "", "tallyline_faults", false},
    };
}

std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

void putInputs(const std::string& folder) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    const std::string sample = ::testing::sourceDir() + "/samples/feeder-15min";
    fs::copy_file(sample + ".dat", folder + "/feeder.dat");
    // As it comes from the line: the header, then lines of ten readings after the mark, and the end mark.
    const std::string text = TemporaryFolder::read(sample + ".dat");
    const auto header = text.find('P');
    std::ofstream(folder + "/received.txt", std::ios::binary)
        << text.substr(header, text.find('\r', header) - header)
        << "\rT: 109 108 107 106 105 104 103 102 101 100\n\r\x1a";
}

// The name of what a writer writes, found out by letting it write.
std::string outputOf(Desk& desk, const Writer& writer, const std::string& folder) {
    const auto before = namesIn(folder);
    const Finished done = runProgram(writer.program, writer.arguments);
    for (const std::string& name : namesIn(folder))
        if (before.count(name) == 0 && (writer.output.empty() || name == writer.output))
            return name;
    desk.wrong(writer.name + ": writes nothing, status " + std::to_string(done.status) + " " + done.err);
    return {};
}

class Trial {
public:
    Trial(Desk& desk, const Writer& writer, std::string folder, std::string output)
        : desk_(desk),
          writer_(writer),
          folder_(std::move(folder)),
          file_(folder_ + "/" + output),
          old_(writer.old.empty() ? TemporaryFolder::read(file_) : writer.old) {}

    // False when the writer never came to that stage.
    bool run(const Stage& stage) {
        stage_ = stage.name;
        fs::remove(file_);
        std::ofstream(file_, std::ios::binary) << old_;
        const auto before = namesIn(folder_);
        bool struck = false;
        {
            const Fault fault(desk_, ruleOf(stage), folder_);
            done_ = runProgram(writer_.program, writer_.arguments);
            struck = fault.struck() > 0;
        }
        if (!struck)
            return false;
        if (stage.kills)
            afterKill();
        else
            afterError(before);
        return true;
    }

private:
    // The settings try again when the program ends: for them the fault stays.
    std::string ruleOf(const Stage& stage) const {
        std::string rule = stage.rule;
        if (!writer_.tellsByStatus && !stage.kills)
            rule[rule.find(' ') + 1] = '0';
        return rule;
    }
    void expect(bool right, const std::string& what) {
        if (!right)
            desk_.wrong(writer_.name + ", " + stage_ + ": " + what + "; status " +
                        std::to_string(done_.status) + " " + done_.err);
    }
    void afterError(const std::set<std::string>& before) {
        expect(TemporaryFolder::read(file_) == old_, "the old file is not as it was");
        expect(!writer_.tellsByStatus || done_.status == 1, "no exit status 1");
        expect(!done_.err.empty(), "nothing was said");
        expect(namesIn(folder_) == before, "something was left");
    }
    void afterKill() {
        expect(done_.status == 128 + SIGKILL, "not killed");
        const std::string now = TemporaryFolder::read(file_);
        done_ = runProgram(writer_.program, writer_.arguments);
        const std::string whole = TemporaryFolder::read(file_);
        expect(done_.status == 0, "cannot write afterwards");
        // A PDF carries its time, so that only its size can be compared.
        expect(now == old_ || now.size() == whole.size(), "the file is neither the old nor the new one");
        for (const std::string& name : namesIn(folder_))
            expect(name.find(".part") == std::string::npos, "something was left after the next save");
    }

    Desk& desk_;
    const Writer& writer_;
    std::string folder_;
    std::string file_;
    std::string old_;
    std::string stage_;
    Finished done_;
};

} // namespace

void tryWriters(Desk& desk) {
    const std::string all = desk.folder.path("writers");
    setenv("XDG_DATA_HOME", desk.folder.path("data").c_str(), 1);
    setenv("XDG_CACHE_HOME", (all + "/cache").c_str(), 1);
    const Instrument sound({});
    const Instrument failed({"--battery-failed"});
    std::vector<Writer> list = writers(all);
    addReceivers(list, all, sound, failed);
    int trials = 0;
    const int before = desk.bad;
    for (const Writer& writer : list) {
        putInputs(all);
        const std::string folder = all + writer.below;
        fs::create_directories(folder);
        const std::string output = outputOf(desk, writer, folder);
        if (output.empty())
            continue;
        Trial trial(desk, writer, folder, output);
        for (std::size_t i = 0; i < stages.size(); ++i) {
            // The short form meets every stage, but not with every writer.
            if (desk.isBrief && desk.roll(1, 4) != 1)
                continue;
            ++trials;
            if (!trial.run(stages[i]))
                desk.wrong(writer.name + " never comes to: " + stages[i].name);
        }
    }
    desk.figure("writers at every stage of a failing disk", trials,
                std::to_string(desk.bad - before) + " wrong");
}

} // namespace tally::faults
