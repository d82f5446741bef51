// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtWaiter.h"

#include "platform/SerialLine.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <utility>

namespace tally {

namespace {

constexpr std::int64_t breathEvery = 50; // milliseconds

} // namespace

QtWaiter::QtWaiter(SerialLine& line) : line_(line), lastBreath_(now()) {
    connect(&line, &SerialLine::stirred, this, &QtWaiter::wake);
}

void QtWaiter::cancel() {
    cancelled_ = true;
    wake();
}

void QtWaiter::wake() {
    woken_ = true;
    if (loop_ != nullptr)
        loop_->quit();
}

Wake QtWaiter::until(std::int64_t deadline) {
    if (now() - lastBreath_ >= breathEvery)
        sleep(0);
    for (bool late = false;;) {
        const std::int64_t time = now();
        if (time >= deadline && (late || time - deadline < stoodStill))
            return late && !cancelRequested() && line_.hasNews() ? Wake::data : Wake::due;
        if (time >= deadline) {
            // The process stood still: one round brings in what has arrived meanwhile.
            late = true;
            sleep(0);
            continue;
        }
        if (cancelRequested())
            return Wake::cancelled;
        if (line_.hasNews())
            return Wake::data;
        sleep(deadline);
    }
}

// Runs the event loop until something happens; with a deadline that has passed, one round of it.
void QtWaiter::sleep(std::int64_t deadline) {
    QEventLoop loop;
    QTimer timer;
    if (deadline != never) {
        // A timer holds 24 days; the caller goes round again.
        const std::int64_t left =
            std::clamp<std::int64_t>(deadline - now(), 0, std::numeric_limits<int>::max());
        timer.setSingleShot(true);
        timer.setTimerType(Qt::PreciseTimer);
        connect(&timer, &QTimer::timeout, this, &QtWaiter::wake);
        timer.start(static_cast<int>(left));
    }
    QEventLoop* const outer = std::exchange(loop_, &loop);
    woken_ = false;
    loop.exec();
    // Whoever else ends this loop ends the application.
    quitting_ = !woken_ || quitting_;
    loop_ = outer;
    lastBreath_ = now();
}

} // namespace tally
