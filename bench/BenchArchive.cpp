// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the archive on recordings that it makes up: bench_Archive COUNT FOLDER. One line a goal: NAME ours
// reference RATIO GOAL ok|over. On servers too when TALLYLINE_TEST_SERVER and TALLYLINE_TEST_PARTITIONS name
// some.
#include "ArchiveSamples.h"
#include "archive/Feed.h"
#include "archive/Questions.h"
#include "archive/Verify.h"
#include "platform/SafeFile.h"
#include "platform/archive/OpenArchive.h"
#include "platform/archive/QtArchiveTools.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <sstream>
#include <thread>

namespace tally::bench {
namespace {

namespace fs = std::filesystem;
using namespace archive;

const QtArchiveTools tools;

double secondsOf(const std::function<void()>& work) {
    const auto begun = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
}

double median(std::vector<double> all) {
    std::sort(all.begin(), all.end());
    return all[all.size() / 2];
}

double medianOf(int times, const std::function<void()>& work) {
    std::vector<double> all;
    for (int time = 0; time < times; ++time)
        all.push_back(secondsOf(work));
    return median(all);
}

// `ratio` is to stay at or under the limit, or at or over it where more is better.
void report(const std::string& name, double ours, double reference, double ratio, double limit,
            bool atLeast) {
    const bool ok = atLeast ? ratio >= limit : ratio <= limit;
    std::printf("%-36s %12.3f %12.3f %8.3f %s%-6g %s\n", name.c_str(), ours, reference, ratio,
                atLeast ? ">=" : "<=", limit, ok ? "ok" : "over");
    std::fflush(stdout);
}

std::unique_ptr<ArchiveStore> opened(const Place& place) {
    auto store = openArchive(place, tools);
    if (!store)
        throw std::runtime_error(store.error().message());
    return *std::move(store);
}

void make(const Place& place, const std::vector<Place>& partitions = {}) {
    if (place.engine == Engine::sqlite) {
        for (const char* suffix : {"", "-wal", "-shm"})
            fs::remove(place.path + suffix);
    } else {
        Connection connection(place, Connection::Mode::write);
        connection.execute("DROP SCHEMA IF EXISTS tallyline CASCADE");
        for (int number = 1; number <= 3; ++number)
            connection.execute("DROP SERVER IF EXISTS tallyline_" + std::to_string(number) + " CASCADE");
    }
    if (const auto made = initArchive(place, partitions); !made)
        throw std::runtime_error(made.error().message());
}

// The first files of the samples.
double addTo(const Place& place, const Samples& samples, int count) {
    const auto store = opened(place);
    const SafeFile files;
    return secondsOf([&] {
        Feed feed(*store, tools, files, [](const FeedCount&) {});
        for (int number = 0; number < count; ++number)
            feed.take(samples.file(number));
        feed.finish();
        if (feed.count().added != count)
            throw std::runtime_error("not all were added");
    });
}

// A file, a statement, a transaction each.
double addRowByRow(const Place& place, const Samples& samples, int count) {
    const auto store = opened(place);
    const SafeFile files;
    return secondsOf([&] {
        for (int number = 0; number < count; ++number) {
            const FoundFile file = samples.file(number);
            store->add({keptOf(files.read(file.path, maximumBytes), samples.notes(number),
                               {file.path, file.names}, tools)
                            .value()});
        }
    });
}

void shell(const std::string& command) {
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("failed: " + command);
}

// The rows of a filled archive put into empty tables by the engine's own tool.
double importRows(const Place& full, const Place& empty, const std::string& folder) {
    const std::vector<std::string> tables = {"recording", "source", "words", "daily", "body"};
    std::string load;
    if (full.engine == Engine::sqlite) {
        for (const std::string& table : tables) {
            shell("sqlite3 -csv '" + full.path + "' 'SELECT * FROM " + table + "' > '" + folder + "/" +
                  table + ".csv'");
            load += ".import --csv " + folder + "/" + table + ".csv " + table + "\n";
        }
        std::FILE* script = std::fopen((folder + "/load.sql").c_str(), "w");
        std::fputs(("PRAGMA synchronous = FULL;\n" + load).c_str(), script);
        std::fclose(script);
        return secondsOf([&] { shell("sqlite3 '" + empty.path + "' < '" + folder + "/load.sql'"); });
    }
    const auto psql = [&](const Place& place, const std::string& command) {
        shell("psql -q '" + place.text() + "' -c \"" + command + "\" > /dev/null");
    };
    for (const std::string& table : tables)
        psql(full, "\\copy tallyline." + table + " TO '" + folder + "/" + table + ".csv' CSV");
    make(empty);
    return secondsOf([&] {
        for (const std::string& table : tables)
            psql(empty, "\\copy tallyline." + table + " FROM '" + folder + "/" + table + ".csv' CSV");
    });
}

Circuit circuitOf(ArchiveStore& store, std::vector<Entry>& entries, int number) {
    Selection selection;
    selection.circuit = Samples::circuit(number);
    entries = store.find(selection);
    Circuit circuit;
    for (const Entry& entry : entries)
        circuit.push_back(&entry);
    return circuit;
}

double typicalOnce(ArchiveStore& store) {
    return medianOf(15, [&] {
        std::vector<Entry> entries;
        typicalDaysOf(store, tools, circuitOf(store, entries, 3));
    });
}

double seasonOnce(ArchiveStore& store) {
    return medianOf(
        9, [&] { peaksOf(store, tools, Samples::seasonFrom(), Samples::seasonTo(), Rank::max, 20); });
}

struct CircuitTimes {
    double typical, growth, coverage, get, search;
};

CircuitTimes timesOf(const Place& place) {
    const auto store = opened(place);
    CircuitTimes times = {};
    typicalOnce(*store);
    times.typical = typicalOnce(*store);
    times.growth = medianOf(15, [&] {
        std::vector<Entry> entries;
        growthOf(*store, tools, circuitOf(*store, entries, 4));
    });
    times.coverage = medianOf(15, [&] {
        Selection selection;
        selection.circuit = Samples::circuit(5);
        coverageOf(*store, selection);
    });
    std::vector<Entry> entries;
    circuitOf(*store, entries, 6);
    times.get = medianOf(31, [&] { giveBack(*store, entries.front(), tools).value(); });
    times.search = medianOf(15, [&] {
        Selection selection;
        selection.words = {"feeder 7", "ma"};
        selection.maximum = 200;
        store->find(selection);
    });
    return times;
}

// What a program without an archive would do: every file, every reading.
int highestOfAll(const Samples& samples, int count) {
    int highest = 0;
    for (int number = 0; number < count; ++number) {
        const SafeFile files;
        const std::string bytes = files.read(samples.file(number).path, maximumBytes);
        int value = 0;
        for (std::size_t at = bytes.find('\r', 8); at < bytes.size(); ++at) {
            const char c = bytes[at];
            if (c >= '0' && c <= '9') {
                value = value * 10 + (c - '0');
            } else {
                highest = std::max(highest, value);
                value = 0;
            }
        }
    }
    return highest;
}

struct Readers {
    std::vector<double> seconds;
    int errors = 0;
};

// Eight readers that ask for a typical day and pause 20 ms, while `work` runs.
Readers readBeside(const Place& place, const std::function<void()>& work) {
    std::atomic<bool> over = false;
    std::vector<Readers> all(8);
    std::vector<std::thread> threads;
    for (Readers& mine : all)
        threads.emplace_back([&] {
            const auto store = opened(place);
            while (!over) {
                try {
                    mine.seconds.push_back(secondsOf([&] {
                        std::vector<Entry> entries;
                        typicalDaysOf(*store, tools,
                                      circuitOf(*store, entries, static_cast<int>(mine.seconds.size() % 20)));
                    }));
                } catch (const std::exception& error) {
                    std::fprintf(stderr, "reader: %s\n", error.what());
                    ++mine.errors;
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
        });
    work();
    over = true;
    Readers sum;
    for (std::size_t at = 0; at < all.size(); ++at) {
        threads[at].join();
        sum.seconds.insert(sum.seconds.end(), all[at].seconds.begin(), all[at].seconds.end());
        sum.errors += all[at].errors;
    }
    return sum;
}

void measureReaders(const std::string& name, const Place& place, const Samples& samples, int count,
                    double alone) {
    make(place);
    addTo(place, samples, count / 2);
    const Readers quiet = readBeside(place, [] { std::this_thread::sleep_for(std::chrono::seconds(3)); });
    double beside = 0;
    const Readers busy = readBeside(place, [&] {
        const auto store = opened(place);
        const SafeFile files;
        beside = secondsOf([&] {
            Feed feed(*store, tools, files, [](const FeedCount&) {});
            for (int number = count / 2; number < count; ++number)
                feed.take(samples.file(number));
            feed.finish();
        });
    });
    report(name + "-readers-errors", busy.errors, 0, busy.errors, 0, false);
    report(name + "-writer-beside-readers", count / 2 / beside, count / alone,
           count / 2 / beside / (count / alone), 0.4, true);
    report(name + "-readers-median", median(busy.seconds) * 1000, median(quiet.seconds) * 1000,
           median(busy.seconds) / median(quiet.seconds), 4, false);
}

void measureEngine(const std::string& name, const Place& place, const Place& other, const Samples& samples,
                   int count) {
    make(place);
    const double add = addTo(place, samples, count);
    std::fprintf(stderr, "%s: %.0f recordings a second\n", name.c_str(), count / add);
    // Into tables that are there and empty.
    if (other.engine == Engine::sqlite)
        make(other);
    const double import = importRows(place, other, samples.folder());
    report(name + "-add-vs-import", add, import, import / add, name == "sqlite" ? 0.4 : 0.5, true);
    const int few = std::min(count / 10, 1000);
    make(other);
    const double rows = addRowByRow(other, samples, few) / few;
    report(name + "-add-vs-row-by-row", add / count * 1000, rows * 1000, rows / (add / count), 2, true);

    make(other);
    addTo(other, samples, std::max(count / 100, 420));
    const CircuitTimes small = timesOf(other);
    const CircuitTimes large = timesOf(place);
    const auto compare = [&](const char* what, double CircuitTimes::*time) {
        report(name + "-" + what + "-large-vs-small", large.*time * 1000, small.*time * 1000,
               large.*time / small.*time, 2, false);
    };
    compare("typical", &CircuitTimes::typical);
    compare("growth", &CircuitTimes::growth);
    compare("coverage", &CircuitTimes::coverage);
    compare("get", &CircuitTimes::get);
    report(name + "-search-ms", large.search * 1000, 50, large.search * 1000, 50, false);
    const auto store = opened(place);
    const double loop = medianOf(3, [&] { highestOfAll(samples, count); });
    const double season = seasonOnce(*store);
    report(name + "-season-vs-reading-files", season * 1000, loop * 1000, loop / season, 15, true);
    measureReaders(name, other, samples, std::min(count, 10000), add * std::min(count, 10000) / count);
}

void measurePartitions(const Place& server, const std::vector<Place>& partitions, const Samples& samples,
                       int count) {
    make(server);
    addTo(server, samples, count);
    double typical = 0;
    double season = 0;
    {
        const auto store = opened(server);
        typicalOnce(*store);
        typical = typicalOnce(*store);
        season = seasonOnce(*store);
    }
    for (const Place& partition : partitions) {
        Connection connection(partition, Connection::Mode::write);
        connection.execute("DROP SCHEMA IF EXISTS tallyline CASCADE");
    }
    make(server, partitions);
    const double add = addTo(server, samples, count);
    std::fprintf(stderr, "partitions: %.0f recordings a second\n", count / add);
    const auto store = opened(server);
    typicalOnce(*store);
    const double splitTypical = typicalOnce(*store);
    report("partitions-typical-vs-one", splitTypical * 1000, typical * 1000, splitTypical / typical, 10,
           false);
    const double splitSeason = seasonOnce(*store);
    report("partitions-season-vs-one", splitSeason * 1000, season * 1000, splitSeason / season, 5, false);
}

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

void measureAll(int count, const std::string& folder) {
    const Samples samples(folder, count);
    Place file;
    file.path = folder + "/archive.sqlite";
    Place other;
    other.path = folder + "/other.sqlite";
    measureEngine("sqlite", file, other, samples, count);
    Place lone = file;
    const double size = static_cast<double>(fs::file_size(lone.path));
    report("sqlite-size-vs-text", size / 1e6, samples.textBytes() / 1e6, size / samples.textBytes(), 1.0,
           false);
    const std::string server = environment("TALLYLINE_TEST_SERVER");
    if (server.empty())
        return;
    {
        Connection connection(parsePlace(server + "/postgres").value(), Connection::Mode::write);
        connection.execute("CREATE DATABASE one");
        connection.execute("CREATE DATABASE two");
    }
    const Place one = parsePlace(server + "/one").value();
    measureEngine("postgresql", one, parsePlace(server + "/two").value(), samples, count);
    std::vector<Place> partitions;
    std::istringstream urls(environment("TALLYLINE_TEST_PARTITIONS"));
    for (std::string url; urls >> url;)
        partitions.push_back(parsePlace(url + "/postgres").value());
    measurePartitions(one, partitions, samples, count);
}

} // namespace
} // namespace tally::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "bench_Archive COUNT FOLDER\n");
        return 2;
    }
    try {
        tally::bench::measureAll(std::atoi(argv[1]), argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
