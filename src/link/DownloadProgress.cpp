// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/DownloadProgress.h"

#include "link/Instruments.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::size_t silenceAfter = 500; // characters; before that a silent line is waited for
constexpr double maximumSilent = 2000.0 / static_cast<double>(DownloadProgress::interval); // ticks
constexpr int maximum = 20000;
constexpr int atFirst = 1000;

} // namespace

bool DownloadProgress::first() {
    if (deadline_ != Waiter::never)
        return false;
    session_.panel.progressText("Waiting for response from the unit.");
    session_.panel.progressVisible(true);
    session_.panel.busy(true);
    deadline_ = session_.waiter.now() + interval;
    return true;
}

void DownloadProgress::count(bool isFirst) {
    value_ = isFirst ? std::max(value_, atFirst) : value_ + 1;
    if (value_ > maximum)
        value_ = 0;
}

bool DownloadProgress::tick(std::size_t received) {
    std::string label = "Characters received so far:" + std::to_string(received);
    bool goesOn = true;
    if (received == counted_) {
        label += "\r\nWaiting for data... ";
        if (received > silenceAfter)
            goesOn = silentTicks_++ <= maximumSilent;
    }
    counted_ = received;
    session_.panel.progressText(label);
    session_.panel.progress(value_);
    deadline_ = session_.waiter.now() + interval;
    if (!goesOn) {
        session_.panel.progressText("Terminated by waiting for data");
        session_.panel.appendLog("Terminated by waiting for data\r\n");
    }
    return goesOn;
}

void DownloadProgress::tokenSeen() {
    session_.panel.status("Treating unit as " + InstrumentName(session_.instrument.instAutoCurrent) +
                          ".  Got a response. Downloading data...");
    session_.panel.appendLog("Got 'KWT'.\r\n");
}

void DownloadProgress::startOver() {
    value_ = 0;
    if (deadline_ != Waiter::never)
        deadline_ = session_.waiter.now() + interval;
}

} // namespace tally
