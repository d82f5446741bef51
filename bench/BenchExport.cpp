// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include "export/CsvData.h"
#include "export/Export.h"
#include "platform/SafeFile.h"
#include "view/Print.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

namespace tally::bench {

namespace {

// A recording of the largest size with a day curve, its table shown, in a folder of its own.
struct Desk {
    std::string folder;
    Recordings recordings;
    SafeFile files;
    Table table;
    std::string bytes; // of the export

    explicit Desk(bool low) {
        // On the disk of the build: the folder for temporary files may be memory.
        std::string pattern = TALLY_BIN_DIR "/export-XXXXXX";
        folder = mkdtemp(pattern.data());
        FileFacts& info = recordings.gInfo[0];
        info.low = low;
        info.path = folder + "/x.dat";
        info.start = toReadingTime({2024, 3, 1, 0, 0});
        info.count = Recordings::maximumReadings;
        for (int i = 0; i < info.count; ++i)
            recordings.gReadings[0].push_back(
                static_cast<std::int16_t>(2000 + 1500 * std::sin(i / 200.0) + i * 7919 % 101));
        recordings.ginx = 0;
        table = Print(recordings, 0, recordings.all(0));
    }
    ~Desk() { std::filesystem::remove_all(folder); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void csv() { (void)CsvData(recordings, 0, recordings.all(0), {files, folder}); }
    void text(bool perLine) { (void)Export(recordings, 0, table, perLine, files); }
};

// An export against writing the bytes that it writes, in the same safe way, to the disk and back from it: the
// reference stands for what no export can do without.
void exportGoal(const std::string& name, const std::shared_ptr<Desk>& desk, const std::string& file,
                Run run) {
    run();
    desk->bytes = desk->files.read(desk->folder + "/" + file, std::uint64_t{1} << 30);
    goal(
        name, std::move(run), [desk] { desk->files.write(desk->folder + "/plain.txt", desk->bytes); }, 1.2);
}

void csvGoal(const std::string& name, bool low) {
    const auto desk = std::make_shared<Desk>(low);
    exportGoal(name, desk, "Lotusint.csv", [desk] { desk->csv(); });
}

void textGoal(const std::string& name, bool perLine) {
    const auto desk = std::make_shared<Desk>(true);
    exportGoal(name, desk, "x.prn", [desk, perLine] { desk->text(perLine); });
}

} // namespace

void registerGoals() {
    csvGoal("export-csv", true);
    csvGoal("export-csv-high", false);
    textGoal("export-table", false);
    textGoal("export-one-per-line", true);
}

} // namespace tally::bench
