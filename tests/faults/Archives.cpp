// SPDX-License-Identifier: GPL-3.0-or-later
// An archive whose disk fails, or whose program is killed, while a recording is added.
#include "Desk.h"

#include "support/Places.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>

namespace tally::faults {

namespace {

using testing::Finished;
using testing::runProgram;

class Archive {
public:
    Archive(Desk& desk, std::string path) : desk_(desk), path_(std::move(path)) {}

    Finished run(std::vector<std::string> words) const {
        words.insert(words.begin(), {"archive", "--db", path_});
        return runProgram("tallyline-cli", words);
    }
    int recordings() const {
        const auto stats = nlohmann::json::parse(run({"stats", "--json"}).out, nullptr, false);
        return stats.is_object() ? stats.value("recordings", -1) : -1;
    }
    // True when the fault came to strike.
    bool adds(const std::string& file, const std::string& rule) {
        bool struck = false;
        Finished done;
        {
            const Fault fault(desk_, rule, path_);
            done = run({"add", file});
            struck = fault.struck() > 0;
        }
        const int kept = recordings();
        if (run({"verify"}).status != 0 || (kept != 1 && kept != 2))
            desk_.wrong("archive, " + rule + ": not whole afterwards");
        if (done.status == 0 && kept != 2)
            desk_.wrong("archive, " + rule + ": what was acknowledged is not there");
        if (run({"add", file}).status != 0 || recordings() != 2)
            desk_.wrong("archive, " + rule + ": cannot be added to afterwards");
        return struck;
    }

private:
    Desk& desk_;
    std::string path_;
};

} // namespace

void tryArchives(Desk& desk) {
    const std::string samples = ::testing::sourceDir() + "/samples/";
    const std::string path = desk.folder.path("kept.db");
    int trials = 0;
    const int before = desk.bad;
    for (const std::string action : {"kill", "killafter"}) {
        for (int nth = 1; nth <= (desk.isBrief ? 1 : 8); ++nth) {
            for (const char* ending : {"", "-wal", "-shm", "-journal"})
                std::filesystem::remove(path + ending);
            Archive archive(desk, path);
            if (archive.run({"init"}).status != 0 ||
                archive.run({"add", samples + "feeder-15min.dat"}).status != 0)
                desk.wrong("archive: cannot be made");
            ++trials;
            if (!archive.adds(samples + "line-voltage.dat", "datasync " + std::to_string(nth) + " " + action))
                break;
        }
    }
    desk.figure("archive, killed at each sync of an addition", trials,
                std::to_string(desk.bad - before) + " wrong");
}

} // namespace tally::faults
