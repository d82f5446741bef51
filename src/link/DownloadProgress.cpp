// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/DownloadProgress.h"

#include "link/Instruments.h"
#include "link/ReceiveLimit.h"

#include <algorithm>
#include <cmath>

namespace tally {

namespace {

constexpr std::size_t silenceAfter = 500; // characters; before that a silent line is waited for
constexpr double maximumSilent = 2000.0 / static_cast<double>(DownloadProgress::interval); // ticks
constexpr int maximum = 20000;
constexpr int atFirst = 1000;

// "43,396"
std::string grouped(std::size_t number) {
    std::string digits = std::to_string(number);
    for (std::size_t at = digits.size(); at > 3; at -= 3)
        digits.insert(at - 3, ",");
    return digits;
}

} // namespace

bool DownloadProgress::first() {
    begun_ = session_.waiter.now();
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
    session_.panel.remaining(remainingText(received));
    session_.panel.progress(value_);
    deadline_ = session_.waiter.now() + interval;
    if (!goesOn) {
        session_.panel.progressText("Terminated by waiting for data");
        session_.panel.appendLog("Terminated by waiting for data\r\n");
    }
    return goesOn;
}

// The pace is that of what has come so far.
std::string DownloadProgress::remainingText(std::size_t received) const {
    const std::size_t maximum = maximumCharacters(session_.instrument);
    const std::int64_t took = session_.waiter.now() - begun_;
    if (received == 0 || received >= maximum || took <= 0)
        return {};
    const auto left = static_cast<double>(maximum - received) * static_cast<double>(took) /
                      static_cast<double>(received) / 1000;
    return grouped(received) + " of at most " + grouped(maximum) + " characters, about " +
           std::to_string(static_cast<std::int64_t>(std::ceil(left))) + " s left";
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
