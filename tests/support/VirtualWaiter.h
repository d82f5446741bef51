// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Waiter.h"

#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>

namespace tally::testing {

// A clock that jumps from event to event. A wait that nothing could ever end fails the test.
class VirtualWaiter : public Waiter {
public:
    ReadingTime start = toReadingTime({2024, 3, 15, 14, 5}); // the wall clock at 0 ms
    std::function<bool()> dataWaiting = [] { return false; };

    // Something that happens at a time (milliseconds).
    void at(std::int64_t time, std::function<void()> event) { events_.emplace(time, std::move(event)); }
    void after(std::int64_t delay, std::function<void()> event) { at(now_ + delay, std::move(event)); }
    void cancelAt(std::int64_t time) {
        at(time, [this] { cancelled_ = true; });
    }
    // The process stands still from a time on, for so long; what happens meanwhile is seen afterwards.
    void standStill(std::int64_t time, std::int64_t duration) {
        at(time, [this, duration] { now_ += duration; });
    }
    void cancelNow() { cancelled_ = true; }

    std::int64_t now() const override { return now_; }
    ReadingTime localTime() const override { return start + now_ / 60000; }
    bool cancelRequested() const override { return cancelled_; }
    void resetCancel() override { cancelled_ = false; }

    Wake until(std::int64_t deadline) override {
        if (++waits_ > maximumWaits)
            throw std::logic_error("the session waits without end");
        for (;;) {
            runEvents();
            if (now_ >= deadline)
                return now_ - deadline >= stoodStill && !cancelled_ && dataWaiting() ? Wake::data : Wake::due;
            if (cancelled_)
                return Wake::cancelled;
            if (dataWaiting())
                return Wake::data;
            const std::int64_t next = events_.empty() ? never : events_.begin()->first;
            if (next == never && deadline == never)
                throw std::logic_error("the session waits and nothing is scheduled");
            now_ = next < deadline ? next : deadline;
        }
    }

private:
    static constexpr int maximumWaits = 3000000;

    void runEvents() {
        while (!events_.empty() && events_.begin()->first <= now_) {
            const auto event = std::move(events_.begin()->second);
            events_.erase(events_.begin());
            event();
        }
    }

    std::multimap<std::int64_t, std::function<void()>> events_;
    std::int64_t now_ = 0;
    int waits_ = 0;
    bool cancelled_ = false;
};

} // namespace tally::testing
