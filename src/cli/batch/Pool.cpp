// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Pool.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace tally::cli {

namespace {

constexpr std::size_t aheadPerThread = 32;
// The taker is woken for this many results at once, or after this time: waking it costs as much as a job.
constexpr std::size_t takenAtOnce = 16;
constexpr auto longestWait = std::chrono::milliseconds(50);

class Pool {
public:
    explicit Pool(const PoolWork& work) : work_(work), waiting_(aheadPerThread * work.threads) {}

    void run() {
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < work_.threads; ++i)
            threads.emplace_back([this] { workOn(); });
        takeAll();
        {
            const std::lock_guard lock(mutex_);
            ended_ = true;
        }
        room_.notify_all();
        for (std::thread& thread : threads)
            thread.join();
    }

private:
    bool worthTaking() {
        const bool full = next_ >= taken_ + waiting_.size(); // nobody can go on
        return finished_ == work_.jobs || (placeOf(taken_) && (ready_ >= takenAtOnce || full));
    }

    std::optional<JobResult>& placeOf(std::size_t job) { return waiting_[job % waiting_.size()]; }

    void workOn() {
        const RunJob runJob = work_.makeWorker();
        while (const auto job = nextJob()) {
            JobResult result = runJob(*job);
            const std::lock_guard lock(mutex_);
            placeOf(*job) = std::move(result);
            ++ready_;
            ++finished_;
            if (worthTaking())
                filled_.notify_one();
        }
    }

    std::optional<std::size_t> nextJob() {
        std::unique_lock lock(mutex_);
        room_.wait(lock,
                   [this] { return ended_ || next_ == work_.jobs || next_ < taken_ + waiting_.size(); });
        if (ended_ || next_ == work_.jobs)
            return std::nullopt;
        return next_++;
    }

    // The results that stand at the front, without a gap.
    std::vector<JobResult> front() {
        std::unique_lock lock(mutex_);
        filled_.wait_for(lock, longestWait, [this] { return worthTaking(); });
        std::vector<JobResult> results;
        for (; taken_ < work_.jobs && placeOf(taken_); ++taken_) {
            results.push_back(std::move(*placeOf(taken_)));
            placeOf(taken_).reset();
        }
        ready_ -= results.size();
        return results;
    }

    void takeAll() {
        std::size_t job = 0;
        while (job < work_.jobs && !work_.stopped()) {
            std::vector<JobResult> results = front();
            room_.notify_all();
            for (JobResult& result : results)
                if (!work_.take(job++, std::move(result)))
                    return;
        }
    }

    const PoolWork& work_;
    std::mutex mutex_;
    std::condition_variable filled_;
    std::condition_variable room_;
    std::vector<std::optional<JobResult>> waiting_;
    std::size_t next_ = 0;
    std::size_t taken_ = 0;
    std::size_t ready_ = 0; // not taken yet
    std::size_t finished_ = 0;
    bool ended_ = false;
};

} // namespace

void runPool(const PoolWork& work) {
    Pool(work).run();
}

} // namespace tally::cli
