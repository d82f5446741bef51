// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Session.h"

namespace tally {

namespace {

// Little enough to look at timers and cancel often.
constexpr std::size_t mostKept = 1024;
constexpr std::size_t clockEvery = 64; // kept characters

} // namespace

void Session::openPort() {
    line.CommPort(instrument.gCommPort);
    line.Settings(instrument.portSettings);
    line.InputLen(1);
    line.EOFEnable(stopsAtCtrlZ);
    line.onArrival([&sink = journal](std::string_view characters) { sink.append(characters); });
    line.PortOpen(true);
}

void Session::closePort() {
    if (line.isOpen())
        line.PortOpen(false);
    kept_.clear();
    used_ = 0;
}

void Session::drain(std::size_t most) {
    line.inputAll(kept_, most);
}

std::string Session::Input() {
    if (!unused()) {
        kept_.clear();
        used_ = 0;
        looked_ = waiter.now();
        drain(mostKept);
    }
    return unused() ? std::string(1, kept_[used_++]) : std::string();
}

Wake Session::until(std::int64_t deadline) {
    if (!unused())
        return waiter.until(deadline);
    // Looking at the clock takes longer than a character does, and some dozen of them take no time.
    if (used_ % clockEvery == 0)
        looked_ = waiter.now();
    if (looked_ >= deadline)
        return Wake::due;
    return waiter.cancelRequested() ? Wake::cancelled : Wake::data;
}

Wake Session::pause(std::int64_t deadline) {
    for (;;) {
        const Wake wake = waiter.until(deadline);
        if (wake != Wake::data)
            return wake;
        drain(kept_.size() + mostKept);
        if (!line.isOpen())
            return Wake::due;
    }
}

} // namespace tally
