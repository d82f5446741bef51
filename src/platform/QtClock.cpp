// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtClock.h"

#include <QDateTime>
#include <chrono>

namespace tally {

ReadingTime QtClock::localTime() const {
    const QDateTime time = QDateTime::currentDateTime();
    return toReadingTime({time.date().year(), time.date().month(), time.date().day(), time.time().hour(),
                          time.time().minute()});
}

std::int64_t QtClock::now() const {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace tally
