// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PatientFiles.h"

#include <QEventLoop>
#include <exception>
#include <thread>

namespace tally {

void PatientFiles::write(const std::string& path, const std::string& bytes) {
    QEventLoop loop;
    std::exception_ptr problem;
    std::thread writer([&] {
        try {
            files_.write(path, bytes);
        } catch (...) {
            problem = std::current_exception();
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    // The loop also ends with the application; the file is written all the same.
    writer.join();
    if (problem)
        std::rethrow_exception(problem);
}

} // namespace tally
