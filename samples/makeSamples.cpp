// SPDX-License-Identifier: GPL-3.0-or-later
// make_samples DIR writes the sample recordings; make_samples --check DIR tells whether they stand there as
// they would be written.
#include "LoadCurve.h"

#include "core/ModeTable.h"
#include "core/NotesFile.h"
#include "core/SaveText.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace tally::samples {

namespace {

// How an instrument was set up and when it was read.
struct Setup {
    std::string model;
    char mode; // as the header has it: upper case when it has stopped
    std::string serial;
    std::string battery; // three hexadecimal digits
    bool low;
    CivilTime start;
    int intervals;
};

// A path below the folder, and the bytes of the file.
using SampleFiles = std::map<std::string, std::string>;

char letterOf(const Setup& setup) {
    return lowerCase(setup.mode);
}

ReadingTime timeOfInterval(const Setup& setup, int interval) {
    return toReadingTime(setup.start) + std::int64_t{modeRow(letterOf(setup)).minutes} * interval;
}

std::string header(const Setup& setup) {
    std::string text = setup.model + setup.mode + "   " + setup.serial;
    text.resize(30, ' ');
    return text + "mm-dd-yy hh:mm   Vbatt " + setup.battery;
}

std::int16_t tenths(double value, bool low) {
    const int whole = static_cast<int>(low ? value * 10 + 0.5 : value + 0.5);
    return static_cast<std::int16_t>(std::max(whole, 0) * (low ? 1 : 10));
}

// The file as the program saves it. The time in the header is two intervals after the newest reading, so that
// opening it gives reading 0 the time of its start.
std::string dataFile(const Setup& setup, std::vector<std::int16_t> readings) {
    Recordings recordings;
    FileFacts& facts = recordings.gInfo[0];
    facts.modeLetter = letterOf(setup);
    facts.low = setup.low;
    facts.header = header(setup);
    facts.start = timeOfInterval(setup, 2);
    facts.count = static_cast<int>(readings.size());
    recordings.gReadings[0] = std::move(readings);
    recordings.ginx = 0;
    return quoted(buildDataText(recordings, 0, recordings.all(0)));
}

std::vector<std::int16_t> averages(const Setup& setup, const std::function<double(ReadingTime)>& load) {
    std::vector<std::int16_t> readings;
    for (int i = 0; i < setup.intervals; ++i)
        readings.push_back(tenths(load(timeOfInterval(setup, i)), setup.low));
    return readings;
}

std::function<double(ReadingTime)> restless(const Feeder& feeder) {
    return [feeder, noise = Noise(feeder.seed)](ReadingTime time) mutable {
        return steadyLoad(feeder, time) * (1 + feeder.restless * noise.next());
    };
}

// Four weeks of a feeder with a fault that drew current for one interval, and an outage of two hours and a
// half after which everything starts at once.
void addFeeder(SampleFiles& files) {
    const Setup setup = {"PQX", 'a', "4127", "3E8", false, {2024, 3, 4, 0, 0}, 4 * 7 * 96};
    std::vector<std::int16_t> readings = averages(setup, restless({318, 0.6, 0.06, 4127}));
    const std::size_t fault = 9 * 96 + 57;
    readings[fault] = 8640;
    const std::size_t outage = 17 * 96 + 70;
    std::fill_n(readings.begin() + static_cast<std::ptrdiff_t>(outage), 10, std::int16_t{0});
    readings[outage + 10] = 4210;
    files["feeder-15min.dat"] = dataFile(setup, readings);
    files["feeder-15min.not"] =
        formatNotes({"Mill Road substation", "Feeder 12 - red phase", "J. Turner", "Outage on 21 March"});
}

void addLowFeeder(SampleFiles& files) {
    const Setup setup = {"PQX", 'b', "0983", "3A1", true, {2024, 6, 3, 0, 0}, 7 * 288};
    files["feeder-5min-low.dat"] = dataFile(setup, averages(setup, restless({61, 0.85, 0.15, 983})));
}

// A workshop whose machines start and stop within the minute: smallest and largest lie far apart in working
// hours.
void addMinMaxAvg(SampleFiles& files) {
    const Setup setup = {"HVN", 'L', "2210", "35C", false, {2024, 9, 12, 0, 0}, 2 * 1440};
    const Feeder feeder = {142, 0.1, 0.1, 2210};
    auto load = restless(feeder);
    Noise noise(77);
    std::vector<std::int16_t> readings;
    for (int i = 0; i < setup.intervals; ++i) {
        const double average = load(timeOfInterval(setup, i));
        const double swing = average * average / feeder.amps * 0.35;
        const double start = noise.one() > 0.97 ? 160 : 0;
        for (const double value : {average, average + swing * (1 + noise.one()) / 2 + start,
                                   average - swing * (1 + noise.one()) / 2})
            readings.push_back(tenths(value, setup.low));
    }
    files["workshop-1min-minmaxavg.dat"] = dataFile(setup, readings);
}

// Voltage sags when the load is high; a step of the transformer's tap changer each morning and evening.
void addVoltage(SampleFiles& files) {
    const Setup setup = {"PQV", 'a', "0315", "3C4", true, {2024, 3, 4, 0, 0}, 2 * 7 * 96};
    auto load = restless({1, 0.6, 0.05, 315});
    Noise noise(316);
    files["line-voltage.dat"] = dataFile(setup, averages(setup, [&](ReadingTime time) {
                                             const auto hour = time.minutes / 60 % 24;
                                             const double tap = hour >= 6 && hour < 22 ? 0.5 : 0;
                                             return 123.4 + tap - 6.1 * load(time) + 0.4 * noise.next();
                                         }));
}

// Three phases of four feeders of one station, read at the same time.
void addStation(SampleFiles& files) {
    struct Named {
        const char* name;
        Feeder feeder;
    };
    const Named feeders[] = {{"maple", {236, 0.9, 0.05, 11}},
                             {"birch", {188, 0.3, 0.06, 23}},
                             {"cedar", {274, 0.55, 0.05, 37}},
                             {"elm", {121, 0.0, 0.08, 41}}};
    const char* const phases[] = {"red", "white", "blue"};
    int serial = 5001;
    for (const Named& named : feeders)
        for (std::uint32_t phase = 0; phase < 3; ++phase) {
            Feeder feeder = named.feeder;
            feeder.amps *= 1 + 0.07 * (static_cast<double>(phase) - 1);
            feeder.seed += 1000 * phase;
            const Setup setup = {"KWT",     'd', std::to_string(serial++), "3D0", false, {2024, 1, 8, 0, 0},
                                 2 * 7 * 96};
            files[std::string("station/") + named.name + "-" + phases[phase] + ".dat"] =
                dataFile(setup, averages(setup, restless(feeder)));
        }
}

// What a load study shows: a feeder whose single-phase homes hang on red, five weeks of a feeder that comes
// near its 400 A, and a recorder whose clamp stuck for nine hours and was struck once.
void addStudies(SampleFiles& files) {
    const char* const phases[] = {"red", "white", "blue"};
    const double shares[] = {1.25, 0.95, 0.6};
    for (std::size_t phase = 0; phase < 3; ++phase) {
        const Setup setup = {"KWT",     'a', std::to_string(6001 + phase), "3C8", false, {2024, 2, 26, 0, 0},
                             2 * 7 * 96};
        const Feeder feeder = {164 * shares[phase], 0.95, 0.09, 61 + static_cast<std::uint32_t>(phase)};
        files[std::string("study/unbalanced-") + phases[phase] + ".dat"] =
            dataFile(setup, averages(setup, restless(feeder)));
    }
    const Setup full = {"PQX", 'a', "6011", "3B9", false, {2024, 6, 24, 0, 0}, 5 * 7 * 96};
    files["study/near-rating.dat"] = dataFile(full, averages(full, restless({405, 0.5, 0.05, 71})));
    const Setup stuck = {"PQX", 'a', "6012", "3AA", false, {2024, 10, 7, 0, 0}, 2 * 7 * 96};
    std::vector<std::int16_t> readings = averages(stuck, restless({208, 0.7, 0.07, 73}));
    const auto from = readings.begin() + 4 * 96 + 30;
    std::fill_n(from, 36, *from);
    readings[9 * 96 + 44] = 7210;
    files["study/flat-and-spike.dat"] = dataFile(stuck, readings);
}

SampleFiles allSamples() {
    SampleFiles files;
    addFeeder(files);
    addLowFeeder(files);
    addMinMaxAvg(files);
    addVoltage(files);
    addStation(files);
    addStudies(files);
    return files;
}

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int check(const std::string& folder) {
    int different = 0;
    for (const auto& [name, bytes] : allSamples())
        if (contents(folder + "/" + name) != bytes) {
            std::fprintf(stderr, "%s is not what make_samples writes\n", name.c_str());
            ++different;
        }
    return different == 0 ? 0 : 1;
}

int write(const std::string& folder) {
    for (const auto& [name, bytes] : allSamples()) {
        std::ofstream file(folder + "/" + name, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush()) {
            std::fprintf(stderr, "%s/%s cannot be written\n", folder.c_str(), name.c_str());
            return 1;
        }
    }
    return 0;
}

} // namespace

} // namespace tally::samples

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 2 && arguments[0] == "--check")
        return tally::samples::check(arguments[1]);
    if (arguments.size() == 1)
        return tally::samples::write(arguments[0]);
    std::fputs("Usage: make_samples [--check] DIR\n", stderr);
    return 2;
}
