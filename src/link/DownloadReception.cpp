// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/DownloadReception.h"

#include "core/Numbers.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::size_t silenceAfter = 500; // characters; before that a silent line is waited for
constexpr int progressMaximum = 20000;
constexpr int progressAtFirst = 1000;

std::string secondsText(std::int64_t milliseconds) {
    return "No response in " + Str(static_cast<double>(milliseconds) / 1000) + " seconds";
}

const char* const atBothRates = " at each of two different baud rates.\r\n"
                                "\r\n"
                                "Check that the instrument is connected.\r\n"
                                "Otherwise remove the cable from the instrument, and then\r\n"
                                "try selecting some other instrument type\r\n"
                                "(using Options > Instrument Selection).";

const char* const notValid = "Response from instrument not valid.\r\n"
                             "Remove the cable from the instrument, and then\r\n"
                             "try selecting some other instrument type\r\n"
                             "(using Options > Instrument Selection)";

} // namespace

DownloadReception::DownloadReception(Session& session, std::int64_t waitFor)
    : session_(session),
      timer_(session),
      waitFor_(waitFor),
      limit_(session.instrument.maxSamples <= 2091 ? shortLimit : longLimit) {}

std::optional<ReceivedDownload> DownloadReception::run() {
    if (waitFor_ != Waiter::never)
        waitDeadline_ = session_.waiter.now() + waitFor_;
    if (automatic())
        timer_.StartTimer();
    Step step = Step::goOn;
    while (step == Step::goOn) {
        if (received_.text.size() >= limit_)
            break;
        switch (session_.until(nextDeadline())) {
        case Wake::due:
            step = onDue();
            break;
        case Wake::cancelled:
            return {};
        case Wake::data:
            step = onCharacter();
            break;
        }
    }
    if (step == Step::ended)
        return {};
    received_.lowBattery = scan_.lowBattery();
    if (silenceStop_) {
        session_.panel.progressText("Terminated by waiting for data");
        session_.panel.appendLog("Terminated by waiting for data\r\n");
    }
    return received_;
}

std::int64_t DownloadReception::nextDeadline() const {
    return std::min({timer_.deadline(), tickDeadline_, waitDeadline_});
}

DownloadReception::Step DownloadReception::onDue() {
    if (timer_.due())
        return onResponseTimeOut();
    if (session_.waiter.now() >= waitDeadline_) {
        session_.prompt.tell(secondsText(waitFor_) + ".");
        return Step::ended;
    }
    tick();
    return silenceStop_ ? Step::complete : Step::goOn;
}

DownloadReception::Step DownloadReception::onResponseTimeOut() {
    timer_.logTick();
    if (!timer_.triedBoth())
        return flip();
    timer_.disable();
    session_.prompt.tell(secondsText(ResponseTimer::interval) + atBothRates);
    return Step::ended;
}

DownloadReception::Step DownloadReception::onCharacter() {
    const std::string input = session_.Input();
    if (input.empty()) {
        if (!session_.lost())
            return Step::goOn;
        session_.prompt.tell(session_.line.problem());
        return Step::ended;
    }
    if (received_.text.empty())
        firstCharacter();
    else
        ++progress_;
    if (progress_ > progressMaximum)
        progress_ = 0;
    const bool started = scan_.started();
    received_.text += scan_.feed(input[0]);
    if (!started && scan_.started())
        received_.headerSeen = session_.waiter.localTime();
    if (input[0] == '\x1a')
        return Step::complete;
    return automatic() && !tokenSeen_ && scan_.token() != HeaderScan::Token::pending ? checkToken()
                                                                                     : Step::goOn;
}

DownloadReception::Step DownloadReception::checkToken() {
    if (scan_.token() == HeaderScan::Token::valid) {
        tokenSeen_ = true;
        timer_.StopTimer();
        timer_.setTriedBoth();
        session_.panel.status("Treating unit as " + InstrumentName(session_.instrument.instAutoCurrent) +
                              ".  Got a response. Downloading data...");
        session_.panel.appendLog("Got 'KWT'.\r\n");
        return Step::goOn;
    }
    session_.panel.appendLog(std::string("Got a non-KWT.   triedBoth=") +
                             (timer_.triedBoth() ? "True" : "False") + "\r\n");
    if (!timer_.triedBoth())
        return flip();
    timer_.StopTimer();
    session_.prompt.tell(notValid);
    return Step::ended;
}

// What was received at the old rate is worthless.
DownloadReception::Step DownloadReception::flip() {
    if (timer_.FlipPortSettings() == Wake::cancelled)
        return Step::ended;
    startOver();
    return Step::goOn;
}

void DownloadReception::firstCharacter() {
    progress_ = std::max(progress_, progressAtFirst);
    if (tickDeadline_ != Waiter::never)
        return;
    waitDeadline_ = Waiter::never;
    session_.panel.progressText("Waiting for response from the unit.");
    session_.panel.progressVisible(true);
    session_.panel.busy(true);
    tickDeadline_ = session_.waiter.now() + tickInterval;
}

void DownloadReception::startOver() {
    progress_ = 0;
    scan_.restart();
    received_ = {};
    limit_ = session_.instrument.maxSamples < 10711 ? shortLimit : longLimit;
    if (tickDeadline_ != Waiter::never)
        tickDeadline_ = session_.waiter.now() + tickInterval;
}

// Silent ticks are never reset by characters: stalls add up over the whole download.
void DownloadReception::tick() {
    const std::size_t count = received_.text.size();
    std::string label = "Characters received so far:" + std::to_string(count);
    if (count == counted_) {
        label += "\r\nWaiting for data... ";
        if (count > silenceAfter) {
            silenceStop_ = silentTicks_ > 2000.0 / static_cast<double>(tickInterval);
            silentTicks_ = silenceStop_ ? 0 : silentTicks_ + 1;
        }
    }
    counted_ = count;
    session_.panel.progressText(label);
    session_.panel.progress(progress_);
    tickDeadline_ = session_.waiter.now() + tickInterval;
}

} // namespace tally
