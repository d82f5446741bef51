// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goals.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <utility>
#include <vector>

namespace tally::bench {

namespace {

struct Goal {
    std::string name;
    double limit;
};

constexpr int repetitions = 21;

std::vector<Goal>& goals() {
    static std::vector<Goal> all;
    return all;
}

void add(const std::string& name, Run run) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [run = std::move(run)](benchmark::State& state) {
                                     for (auto _ : state)
                                         run();
                                 })
        ->Repetitions(repetitions)
        ->MinTime(0.02);
}

void addTimed(const std::string& name, TimedRun run) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [run = std::move(run)](benchmark::State& state) {
                                     for (auto _ : state)
                                         state.SetIterationTime(run());
                                 })
        ->Repetitions(repetitions)
        ->MinTime(0.02)
        ->UseManualTime();
}

// Keeps the seconds of every repetition by the name of the measured run.
class Collector : public benchmark::BenchmarkReporter {
public:
    std::map<std::string, std::vector<double>> seconds;
    std::string failure;

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred)
                failure = run.error_message;
            else if (run.run_type == Run::RT_Iteration)
                seconds[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                              static_cast<double>(run.iterations));
        }
    }
    double median(const std::string& name) {
        auto& all = seconds[name];
        if (all.empty())
            return 0;
        const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
        std::nth_element(all.begin(), middle, all.end());
        return *middle;
    }
};

std::string readable(double seconds) {
    char text[32];
    if (seconds < 1e-3)
        std::snprintf(text, sizeof text, "%.1fus", seconds * 1e6);
    else
        std::snprintf(text, sizeof text, "%.2fms", seconds * 1e3);
    return text;
}

} // namespace

void goal(const std::string& name, Run ours, Run reference, double limit) {
    add(name + "/ours", std::move(ours));
    add(name + "/reference", std::move(reference));
    goals().push_back({name, limit});
}

void goalTimed(const std::string& name, TimedRun ours, TimedRun reference, double limit) {
    addTimed(name + "/ours", std::move(ours));
    addTimed(name + "/reference", std::move(reference));
    goals().push_back({name, limit});
}

int runGoals(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    arguments.push_back(interleave.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    registerGoals();
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    if (!collector.failure.empty())
        std::fprintf(stderr, "%s\n", collector.failure.c_str());
    for (const Goal& goal : goals()) {
        const double ours = collector.median(goal.name + "/ours");
        const double reference = collector.median(goal.name + "/reference");
        if (ours <= 0 || reference <= 0)
            continue;
        const double ratio = ours / reference;
        std::printf("%-28s %10s %10s %7.3f %7.3g %s\n", goal.name.c_str(), readable(ours).c_str(),
                    readable(reference).c_str(), ratio, goal.limit, ratio <= goal.limit ? "ok" : "over");
    }
    return 0;
}

} // namespace tally::bench
