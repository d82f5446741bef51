// SPDX-License-Identifier: GPL-3.0-or-later
#include "Run.h"

#include "Child.h"
#include "Judge.h"
#include "Plan.h"

#include <atomic>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <map>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace tally::trial {

namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr auto patience = 4s;           // then the trial presses Ctrl+C, as a user would
constexpr auto automaticPatience = 30s; // two rates and a reset of 5 s
constexpr auto afterCancel = 5s;
constexpr long mostMemory = 120'000; // kilobytes; some 45,000 are Qt's
constexpr int mostDescriptors = 40;

struct Result {
    Plan plan;
    Verdict verdict;
    long memory = 0;
    int descriptors = 0;
};

// Of nine trials five are downloads, two status checks, one an initialization, one a recover.
Kind kindOf(int number) {
    constexpr Kind kinds[] = {Kind::download, Kind::status,   Kind::download, Kind::init,    Kind::download,
                              Kind::recover,  Kind::download, Kind::status,   Kind::download};
    return kinds[number % 9];
}

void converse(const Run& run, const Plan& plan, Remains& remains, Result& result) {
    std::vector<std::string> options = plan.simulatorOptions();
    options.insert(options.end(), {"--record", remains.folder + "/record.txt"});
    Child instrument(run.bin + "/tallyline-sim", "sim", options, remains.folder, true);
    const std::string ready = instrument.line();
    if (!ready.starts_with("READY "))
        throw std::runtime_error("the simulated instrument does not come up");
    remains.device = ready.substr(6);
    Child program(run.bin + "/tallyline-cli", "cli", plan.programOptions(remains.device, remains.output),
                  remains.folder, false);
    if (!program.wait(plan.automatic ? automaticPatience : patience)) {
        remains.cancelled = true;
        program.signal(SIGINT);
        if (!program.wait(afterCancel))
            result.verdict.wrong = "it hangs";
    }
    remains.status = program.status();
    result.memory = program.mostMemory();
    result.descriptors = program.mostDescriptors();
    // It sees the port close a moment after the program has ended.
    std::this_thread::sleep_for(50ms);
    instrument.signal(SIGTERM);
    instrument.wait(5s);
}

Result tryOne(const Run& run, int number, const std::string& folder) {
    Result result;
    result.plan = drawPlan(run.seed, number, kindOf(number));
    fs::remove_all(folder);
    fs::create_directories(folder);
    Remains remains;
    remains.folder = folder;
    remains.output = folder + "/received.dat";
    try {
        converse(run, result.plan, remains, result);
        if (result.verdict.wrong.empty())
            result.verdict = judge(result.plan, remains);
        if (result.verdict.wrong.empty() && result.memory > mostMemory)
            result.verdict.wrong = "it took " + std::to_string(result.memory) + " kB of memory";
        if (result.verdict.wrong.empty() && result.descriptors > mostDescriptors)
            result.verdict.wrong = "it opened " + std::to_string(result.descriptors) + " descriptors";
    } catch (const std::exception& problem) {
        result.verdict.wrong = problem.what();
    }
    return result;
}

// What all trials came to.
class Tally {
public:
    void add(const Result& result) {
        const std::lock_guard<std::mutex> guard(mutex_);
        const std::string kind = nameOf(result.plan.kind);
        ++counts_[kind][result.verdict.wrong.empty() ? result.verdict.outcome : "WRONG"];
        memory_ = std::max(memory_, result.memory);
        descriptors_ = std::max(descriptors_, result.descriptors);
        if (result.verdict.wrong.empty())
            return;
        ++wrong_;
        std::cout << "WRONG: trial " << result.plan.number << ": " << result.verdict.wrong << "\n  "
                  << result.plan.text() << std::endl;
    }
    bool sound() const { return wrong_ == 0 && !counts_.empty(); }
    void show() const {
        for (const auto& [kind, outcomes] : counts_) {
            std::cout << kind << ":";
            for (const auto& [outcome, count] : outcomes)
                std::cout << "  " << count << " " << outcome;
            std::cout << "\n";
        }
        std::cout << "most memory " << memory_ << " kB, most descriptors " << descriptors_ << "\n";
    }

private:
    std::mutex mutex_;
    std::map<std::string, std::map<std::string, int>> counts_;
    long memory_ = 0;
    int descriptors_ = 0;
    int wrong_ = 0;
};

} // namespace

bool runAll(const Run& run) {
    const auto start = std::chrono::steady_clock::now();
    const std::string folder = fs::temp_directory_path().string() + "/line-trial-" + std::to_string(getpid());
    Tally tally;
    std::atomic<int> next = run.only >= 0 ? run.only : 0;
    const int end = run.only >= 0 ? run.only + 1 : run.trials;
    const auto work = [&](int job) {
        for (int number = next++; number < end; number = next++) {
            if (run.seconds > 0 &&
                std::chrono::steady_clock::now() - start > std::chrono::seconds(run.seconds))
                return;
            tally.add(tryOne(run, number, folder + "/" + std::to_string(job)));
        }
    };
    std::vector<std::thread> workers;
    for (int job = 0; job < run.jobs; ++job)
        workers.emplace_back(work, job);
    for (std::thread& worker : workers)
        worker.join();
    if (run.only >= 0)
        std::cout << "What is left of it: " << folder << "/0\n";
    else
        fs::remove_all(folder);
    const auto took = std::chrono::steady_clock::now() - start;
    tally.show();
    std::cout << "seed " << run.seed << ", " << std::chrono::duration_cast<std::chrono::seconds>(took).count()
              << " s\n";
    return tally.sound();
}

} // namespace tally::trial
