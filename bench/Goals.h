// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace tally::bench {

// Once over what is measured.
using Run = std::function<void()>;
// The same where the run measures itself: gives seconds.
using TimedRun = std::function<double()>;

// A goal: our time over the reference's, medians of interleaved repetitions, is to stay at or under `limit`.
// The name has no blanks.
void goal(const std::string& name, Run ours, Run reference, double limit);
void goalTimed(const std::string& name, TimedRun ours, TimedRun reference, double limit);

// Keeps a result from being optimised away.
template <typename T>
void keep(const T& value) {
    benchmark::DoNotOptimize(value);
}

// Each bench program defines this: registers its goals, with whatever they need alive until the end.
void registerGoals();

// Measures all goals and prints one line each: NAME ours reference RATIO GOAL ok|over. Always 0.
int runGoals(int argc, char** argv);

} // namespace tally::bench
