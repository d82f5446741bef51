// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Pool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <set>
#include <thread>

namespace tally::cli {
namespace {

// The outputs of `jobs` jobs that answer with their number; the first ones take longest.
std::vector<std::string> outputs(std::size_t jobs, std::size_t threads, std::size_t takeAtMost = 100000) {
    std::vector<std::string> taken;
    PoolWork work;
    work.jobs = jobs;
    work.threads = threads;
    work.makeWorker = [] {
        return [](std::size_t job) {
            if (job % 97 == 0)
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            return JobResult{0, false, std::to_string(job), {}};
        };
    };
    work.take = [&](std::size_t job, JobResult result) {
        EXPECT_EQ(job, taken.size());
        taken.push_back(result.output);
        return taken.size() < takeAtMost;
    };
    work.stopped = [] { return false; };
    runPool(work);
    return taken;
}

TEST(Pool, ResultsComeInTheOrderOfTheJobsWhateverTheThreads) {
    for (const std::size_t threads : {1U, 2U, 7U}) {
        const auto taken = outputs(1000, threads);
        ASSERT_EQ(taken.size(), 1000U);
        for (std::size_t job = 0; job < taken.size(); ++job)
            EXPECT_EQ(taken[job], std::to_string(job));
    }
}

TEST(Pool, NoJobsAreDoneAtOnce) {
    EXPECT_TRUE(outputs(0, 2).empty());
}

TEST(Pool, EndsWhenTheTakerHasEnough) {
    EXPECT_EQ(outputs(100000, 2, 10).size(), 10U);
}

TEST(Pool, WorkersDoNotRunFarAheadOfTheTaker) {
    std::atomic<std::size_t> begun = 0;
    std::size_t taken = 0;
    std::size_t furthest = 0;
    PoolWork work;
    work.jobs = 2000;
    work.threads = 2;
    work.makeWorker = [&] {
        return [&](std::size_t) {
            ++begun;
            return JobResult{};
        };
    };
    work.take = [&](std::size_t, const JobResult&) {
        furthest = std::max(furthest, begun - taken);
        ++taken;
        return true;
    };
    work.stopped = [] { return false; };
    runPool(work);
    EXPECT_EQ(begun, 2000U);
    EXPECT_LE(furthest, 2 * 2 * 32U);
}

TEST(Pool, EachThreadHasAWorkerOfItsOwn) {
    std::mutex mutex;
    std::set<std::thread::id> made;
    PoolWork work;
    work.jobs = 100;
    work.threads = 3;
    work.makeWorker = [&] {
        const std::lock_guard lock(mutex);
        made.insert(std::this_thread::get_id());
        return [owner = std::this_thread::get_id()](std::size_t) {
            return JobResult{owner == std::this_thread::get_id() ? 0 : 1, false, {}, {}};
        };
    };
    work.take = [](std::size_t, const JobResult& result) {
        EXPECT_EQ(result.status, 0);
        return true;
    };
    work.stopped = [] { return false; };
    runPool(work);
    EXPECT_EQ(made.size(), 3U);
}

TEST(Pool, StopsWhenItIsAskedTo) {
    std::atomic<int> begun = 0;
    PoolWork work;
    work.jobs = 1000;
    work.threads = 2;
    work.makeWorker = [&] {
        return [&](std::size_t) {
            ++begun;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            return JobResult{};
        };
    };
    work.take = [](std::size_t, const JobResult&) { return true; };
    work.stopped = [&] { return begun > 3; };
    runPool(work);
    EXPECT_LT(begun, 200);
}

} // namespace
} // namespace tally::cli
