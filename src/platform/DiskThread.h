// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace tally {

// Does what waits for a disk, one job after the other, so that who gives the jobs need not wait. The thread
// begins with the first job.
class DiskThread {
public:
    DiskThread() = default;
    // Waits for what was given.
    ~DiskThread();
    DiskThread(const DiskThread&) = delete;
    DiskThread& operator=(const DiskThread&) = delete;

    // `job` must not throw.
    void give(std::function<void()> job);
    // Waits until everything given so far is done.
    void finish();

private:
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_; // the first one is being done
    std::thread thread_;
    bool ending_ = false;
};

} // namespace tally
