// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tally::cli {

// What one job came to.
struct JobResult {
    int status = 0;                // as an exit status
    bool ofEvery = false;          // the arguments are wrong, whatever the file
    std::string output;            // for standard output
    std::vector<std::string> told; // warnings, the reason of a failure last
};

using RunJob = std::function<JobResult(std::size_t)>;

struct PoolWork {
    std::size_t jobs = 0;
    std::size_t threads = 1;
    // Called once on each thread; what it gives runs jobs there, one after the other.
    std::function<RunJob()> makeWorker;
    // Takes the results in the order of the jobs, on the calling thread; false ends the work.
    std::function<bool(std::size_t job, JobResult result)> take;
    // Whether to end early; asked several times a second.
    std::function<bool()> stopped;
};

// Does all jobs, or those begun before the end was asked for. At most a few results for each thread wait for
// the ones before them, so that memory does not grow with the number of jobs.
void runPool(const PoolWork& work);

} // namespace tally::cli
