// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtWaiterInterrupt.h"

#include "platform/QtWaiter.h"

#include <QSocketNotifier>
#include <csignal>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tally {

namespace {

#ifdef Q_OS_WIN

// The system calls the handler in a thread of its own, where a queued call is allowed.
QtWaiter* watched = nullptr;

extern "C" void interrupted(int signal) {
    std::signal(signal, interrupted);
    if (watched != nullptr)
        QMetaObject::invokeMethod(watched, &QtWaiter::cancel, Qt::QueuedConnection);
}

#else

// A signal handler may do little more than write to a pipe; the event loop reads it.
int pipeEnds[2] = {-1, -1};
QSocketNotifier* notifier = nullptr;
struct sigaction before[2];
constexpr int watchedSignals[2] = {SIGINT, SIGTERM};

extern "C" void interrupted(int) {
    const char mark = 0;
    [[maybe_unused]] const auto written = write(pipeEnds[1], &mark, 1);
}

#endif

} // namespace

#ifdef Q_OS_WIN

QtWaiterInterrupt::QtWaiterInterrupt(QtWaiter& waiter) {
    watched = &waiter;
    std::signal(SIGINT, interrupted);
}

QtWaiterInterrupt::~QtWaiterInterrupt() {
    std::signal(SIGINT, SIG_DFL);
    watched = nullptr;
}

#else

QtWaiterInterrupt::QtWaiterInterrupt(QtWaiter& waiter) {
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read);
    QObject::connect(notifier, &QSocketNotifier::activated, &waiter, [&waiter] {
        char mark = 0;
        while (read(pipeEnds[0], &mark, 1) == 1)
            waiter.cancel();
    });
    struct sigaction action = {};
    action.sa_handler = interrupted;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < std::size(watchedSignals); ++i)
        sigaction(watchedSignals[i], &action, &before[i]);
}

QtWaiterInterrupt::~QtWaiterInterrupt() {
    if (notifier == nullptr)
        return;
    for (std::size_t i = 0; i < std::size(watchedSignals); ++i)
        sigaction(watchedSignals[i], &before[i], nullptr);
    delete notifier;
    notifier = nullptr;
    for (int& end : pipeEnds) {
        close(end);
        end = -1;
    }
}

#endif

} // namespace tally
