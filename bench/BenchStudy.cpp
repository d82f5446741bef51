// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"
#include "Programs.h"

#include "core/DataText.h"
#include "study/Study.h"
#include "study/forms/StudySheet.h"

#include <QImage>

#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <variant>

namespace tally::bench {

namespace {

constexpr double frame = 0.016; // seconds between two pictures of a screen

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Three files of 42,966 readings, as bytes and open, and everything that a study can be asked for.
struct Desk {
    std::array<LongFile, 3> files;
    std::array<std::string, 3> bytes;
    Recordings recordings;
    study::StudyOptions options;

    Desk() {
        for (std::size_t slot = 0; slot < files.size(); ++slot) {
            bytes[slot] = contents(files[slot].path());
            Recording recording = readDataText(bytes[slot]).value();
            recordings.gInfo[slot] = recording.facts;
            recordings.gInfo[slot].path = files[slot].path();
            recordings.gReadings[slot] = std::move(recording.readings);
        }
        options.high = study::decimalOf("90");
        options.low = study::decimalOf("10");
        options.capacity = study::CapacityCheck{400, 25, 1.25};
        options.power = study::PowerBase{13800, 0.95};
    }
    study::Study study() const { return *study::studyOf(recordings, {}, options); }
};

// From a changed option to the painted page.
double redraw(const Desk& desk) {
    static QImage screen(1200, 900, QImage::Format_RGB32);
    const auto before = std::chrono::steady_clock::now();
    const study::Study study = desk.study();
    const ChartLook look = ChartLook::onPaper();
    study::StudySheet sheet(study, look.font);
    sheet.layOut(screen.width());
    QPainter painter(&screen);
    painter.fillRect(screen.rect(), look.paper);
    sheet.paint(painter, screen.rect(), look);
    painter.end();
    keep(screen.constBits());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count();
}

void pandasGoal(const std::shared_ptr<Desk>& desk) {
    const std::string script = std::string(TALLY_SOURCE_DIR) + "/bench/study_pandas.py";
    if (std::system("/usr/bin/python3 -c 'import pandas' 2>/dev/null") != 0) {
        std::puts("study_against_pandas skipped: python3-pandas is not installed");
        return;
    }
    std::vector<std::string> files;
    for (const LongFile& file : desk->files)
        files.push_back(file.path());
    goal(
        "study_against_pandas",
        [desk, files] {
            std::vector<std::string> arguments = {"study",    "--json", "--volts", "13800",
                                                  "--rating", "400",    "--high",  "90"};
            arguments.insert(arguments.end(), files.begin(), files.end());
            runToEnd("tallyline-cli", arguments);
        },
        [script, files] {
            std::string command = "/usr/bin/python3 " + script;
            for (const std::string& file : files)
                command += " " + file;
            if (std::system((command + " > /dev/null").c_str()) != 0)
                throw std::runtime_error("study_pandas.py failed");
        },
        1.0 / 30);
}

} // namespace

void registerGoals() {
    const auto desk = std::make_shared<Desk>();
    goal(
        "study_of_three_files", [desk] { keep(desk->study().figures.data()); },
        [desk] {
            for (const std::string& bytes : desk->bytes) {
                const auto read = readDataText(bytes);
                keep(read.value().readings.data());
            }
        },
        25);
    goal(
        "cli_study_of_three_files",
        [desk] {
            runToEnd("tallyline-cli",
                     {"study", desk->files[0].path(), desk->files[1].path(), desk->files[2].path()});
        },
        [desk] {
            runToEnd("tallyline-cli", {"summary", desk->files[0].path()});
        },
        2);
    goalTimed(
        "study_redraw_in_a_frame", [desk] { return redraw(*desk); }, [] { return frame; }, 1);
    pandasGoal(desk);
}

} // namespace tally::bench
