// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DiskThread.h"

namespace tally {

DiskThread::~DiskThread() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

void DiskThread::give(std::function<void()> job) {
    {
        const std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
        if (!thread_.joinable())
            thread_ = std::thread([this] { run(); });
    }
    changed_.notify_all();
}

void DiskThread::finish() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return jobs_.empty(); });
}

void DiskThread::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ending_ || !jobs_.empty(); });
        if (jobs_.empty())
            return;
        const auto job = jobs_.front();
        lock.unlock();
        job();
        lock.lock();
        jobs_.pop_front();
        changed_.notify_all();
    }
}

} // namespace tally
