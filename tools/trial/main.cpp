// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions of tallyline-cli over the real serial line against simulated instruments with faults drawn at
// random. Each must end with the right result or with words.
#include "Run.h"

#include <CLI/CLI.hpp>
#include <filesystem>

int main(int argc, char** argv) {
    CLI::App app("Trials of the line: sessions with instruments whose faults are drawn at random.",
                 "line-trial");
    tally::trial::Run run;
    run.bin = std::filesystem::canonical("/proc/self/exe").parent_path().string();
    app.add_option("--seed", run.seed, "another number draws other faults")->capture_default_str();
    app.add_option("--trials", run.trials, "how many; of nine, five are downloads")->capture_default_str();
    app.add_option("--only", run.only, "this trial alone, and its files are left for a look");
    app.add_option("--seconds", run.seconds, "no trial begins after so many");
    app.add_option("--jobs", run.jobs, "so many at a time")->check(CLI::Range(1, 64))->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    if (run.only >= 0)
        run.jobs = 1;
    return tally::trial::runAll(run) ? 0 : 1;
}
