// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ResponseTimer.h"

#include "link/Instruments.h"

namespace tally {

namespace {

std::string word(bool flag) {
    return flag ? "True" : "False";
}

} // namespace

void switchAutoType(InstrumentState& instrument) {
    const bool slow = instrument.instAutoCurrent == 8;
    instrument.instAutoCurrent = slow ? 7 : 8;
    instrument.portSettings = slow ? "9600,N,8,1" : "115200,N,8,1";
    instrument.maxSamples = slow ? 10710 : 42966;
}

void ResponseTimer::StartTimer() {
    session_.panel.appendLog("Start of StartTimer: timer1.enabled=" + word(running_) + "\r\n");
    running_ = true;
    deadline_ = session_.waiter.now() + interval;
    session_.panel.status("Treating unit as " + InstrumentName(session_.instrument.instAutoCurrent) +
                          ".  Waiting for response...");
}

void ResponseTimer::StopTimer() {
    session_.panel.appendLog("Start of StopTimer: timer1.enabled=" + word(running_) + "\r\n");
    running_ = false;
}

void ResponseTimer::logTick() {
    session_.panel.appendLog("Start of timer1. timer1.enabled =" + word(running_) + "\r\n");
}

SessionResult<void> ResponseTimer::FlipPortSettings(const std::string& reason, bool quiet) {
    running_ = false;
    session_.panel.status(reason + " Changing settings. (Takes about 5 seconds)...");
    switchAutoType(session_.instrument);
    session_.closePort();
    session_.journal.restart(session_.instrument.portSettings);
    if (auto opened = session_.open(quiet); !opened)
        return opened;
    triedBoth_ = true;
    session_.line.DTREnable(false);
    const Wake wake = session_.pause(session_.waiter.now() + resetTime);
    session_.line.DTREnable(true);
    if (wake == Wake::cancelled)
        return Session::cancelled();
    session_.panel.status("Now treating unit as " + InstrumentName(session_.instrument.instAutoCurrent) +
                          ".  Waiting for response...");
    running_ = true;
    deadline_ = session_.waiter.now() + interval;
    return {};
}

} // namespace tally
