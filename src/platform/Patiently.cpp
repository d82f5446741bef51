// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Patiently.h"

#include <QEventLoop>
#include <exception>
#include <thread>

namespace tally {

void patiently(const std::function<void()>& work) {
    QEventLoop loop;
    std::exception_ptr problem;
    std::thread thread([&] {
        try {
            work();
        } catch (...) {
            problem = std::current_exception();
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    // The loop also ends with the application; the work is done all the same.
    thread.join();
    if (problem)
        std::rethrow_exception(problem);
}

} // namespace tally
