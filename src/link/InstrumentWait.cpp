// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/InstrumentWait.h"

#include "core/Fault.h"
#include "core/Numbers.h"
#include "link/ReceiveLimit.h"

#include <algorithm>
#include <utility>

namespace tally {

namespace {

constexpr char endMark = '\x1a';

} // namespace

std::string noResponseText(std::int64_t milliseconds) {
    return "No response in " + Str(static_cast<double>(milliseconds) / 1000) + " seconds";
}

InstrumentWait::InstrumentWait(Session& session, WaitPolicy policy)
    : session_(session),
      policy_(std::move(policy)),
      timer_(session),
      hint_(session),
      limit_(policy_.wholeText ? receiveLimit(session.instrument) : HeaderScan::longest) {
    if (policy_.wholeText)
        progress_.emplace(session);
}

SessionResult<Received> InstrumentWait::run() {
    if (policy_.waitFor != Waiter::never)
        waitDeadline_ = session_.waiter.now() + policy_.waitFor;
    if (automatic())
        timer_.StartTimer();
    else if (policy_.waitFor == Waiter::never)
        hint_.start();
    Step step = Step::goOn;
    while (step == Step::goOn && received_.text.size() < limit_) {
        switch (session_.until(nextDeadline())) {
        case Wake::due:
            step = onDue();
            break;
        case Wake::cancelled:
            return Session::cancelled();
        case Wake::data:
            step = onCharacter();
            break;
        }
    }
    if (step == Step::ended)
        return tl::make_unexpected(end_);
    return std::move(received_);
}

std::int64_t InstrumentWait::nextDeadline() const {
    const std::int64_t tick = progress_ ? progress_->deadline() : Waiter::never;
    return std::min({timer_.deadline(), tick, waitDeadline_, lineDeadline_, lineGivenUp_, hint_.deadline()});
}

InstrumentWait::Step InstrumentWait::onDue() {
    if (timer_.due())
        return onResponseTimeOut();
    const std::int64_t now = session_.waiter.now();
    if (now >= waitDeadline_)
        return fail(EndKind::noResponse, {noResponseText(policy_.waitFor) + "."});
    if (now >= std::min(lineDeadline_, lineGivenUp_))
        return Step::complete;
    if (progress_ && now >= progress_->deadline() && !progress_->tick(received_.text.size()))
        return Step::complete;
    if (hint_.isDue())
        hint_.onDue();
    return Step::goOn;
}

InstrumentWait::Step InstrumentWait::onResponseTimeOut() {
    timer_.logTick();
    if (!timer_.triedBoth())
        return flip("No response.");
    timer_.disable();
    session_.gErrorCallPoint = policy_.atGiveUp != 0 ? policy_.atGiveUp : session_.gErrorCallPoint;
    return fail(received_.scan.started() ? EndKind::wrongResponse : EndKind::noResponse,
                {policy_.silent(received_.scan)});
}

InstrumentWait::Step InstrumentWait::onCharacter() {
    const std::string input = session_.Input();
    if (input.empty())
        return session_.lost() ? lineGone() : Step::goOn;
    hint_.heard();
    const bool first = received_.scan.count() == 0;
    if (first)
        firstCharacter();
    if (progress_)
        progress_->count(first);
    const bool started = received_.scan.started();
    const char kept = received_.scan.feed(input[0]);
    // What comes before a header is of no use without the rest.
    if (policy_.wholeText || received_.scan.started())
        received_.text += kept;
    if (!started && received_.scan.started())
        received_.headerSeen = session_.waiter.localTime();
    return onKept(input[0]);
}

InstrumentWait::Step InstrumentWait::onKept(char c) {
    if (policy_.refuses)
        if (const auto end = policy_.refuses(received_.scan))
            return fail(end->kind, end->why);
    if (tokenAwaited()) {
        // An end mark where the token is awaited is noise at the wrong rate.
        if (c == endMark && policy_.tokenAtOnce)
            return wrongToken();
        if (received_.scan.token() != HeaderScan::Token::pending)
            return checkToken(c);
    } else if (c == endMark && policy_.wholeText) {
        return watchEnd();
    }
    return policy_.wholeText ? Step::goOn : onLine(c);
}

InstrumentWait::Step InstrumentWait::onLine(char c) {
    if (!received_.scan.lineComplete() || tokenAwaited())
        return Step::goOn;
    const bool ends = c == '\r';
    if (ends && (!policy_.readable || policy_.readable(received_)))
        return Step::complete;
    waitDeadline_ = Waiter::never;
    lineDeadline_ = session_.waiter.now() + DownloadProgress::interval;
    if (lineGivenUp_ == Waiter::never)
        lineGivenUp_ = session_.waiter.now() + ResponseTimer::interval;
    return Step::goOn;
}

InstrumentWait::Step InstrumentWait::checkToken(char c) {
    if (received_.scan.token() != HeaderScan::Token::valid)
        return policy_.tokenAtOnce ? wrongToken() : Step::goOn;
    tokenSeen_ = true;
    hint_.start();
    if (timer_.running())
        timer_.StopTimer();
    timer_.setTriedBoth();
    if (progress_)
        progress_->tokenSeen();
    if (policy_.onRecording)
        policy_.onRecording();
    return policy_.wholeText ? Step::goOn : onLine(c);
}

InstrumentWait::Step InstrumentWait::wrongToken() {
    if (progress_)
        session_.panel.appendLog(std::string("Got a non-KWT.   triedBoth=") +
                                 (timer_.triedBoth() ? "True" : "False") + "\r\n");
    if (!timer_.triedBoth())
        return flip(progress_ ? "No response." : "Bad header.");
    timer_.StopTimer();
    return fail(EndKind::wrongResponse, {policy_.wrongToken(received_.scan)});
}

// What was received at the old rate is worthless.
InstrumentWait::Step InstrumentWait::flip(const std::string& reason) {
    session_.gErrorCallPoint = policy_.atSwitch != 0 ? policy_.atSwitch : session_.gErrorCallPoint;
    startOver();
    const auto flipped = timer_.FlipPortSettings(reason, !policy_.lineGone.empty());
    if (flipped) {
        if (progress_)
            progress_->startOver();
        limit_ = policy_.wholeText ? receiveLimitAfterFlip(session_.instrument) : limit_;
        return Step::goOn;
    }
    if (flipped.error().kind == EndKind::badPort && !policy_.lineGone.empty())
        return lineGone();
    end_ = flipped.error();
    return Step::ended;
}

InstrumentWait::Step InstrumentWait::fail(EndKind kind, const Refusal& why) {
    end_ = session_.end(kind, why).value();
    return Step::ended;
}

InstrumentWait::Step InstrumentWait::lineGone() {
    const std::string problem = session_.line.problem();
    if (policy_.lineGone.empty())
        return fail(EndKind::lineGone, {problem});
    if (!problem.empty())
        session_.panel.appendLog(problem + "\r\n");
    return fail(EndKind::lineGone, {policy_.lineGone, problem});
}

// The text ends at its first end mark. Whether more comes is what tells a stray one from the last.
InstrumentWait::Step InstrumentWait::watchEnd() {
    if (session_.pause(session_.waiter.now() + DownloadProgress::interval) == Wake::cancelled)
        return Step::ended;
    received_.followed = session_.unused();
    return Step::complete;
}

void InstrumentWait::firstCharacter() {
    if (progress_ && progress_->first()) {
        // From here on nothing bounds the wait.
        if (waitDeadline_ != Waiter::never)
            hint_.start();
        waitDeadline_ = Waiter::never;
    }
    if (policy_.onFirst)
        policy_.onFirst();
    if (policy_.onRecording && !automatic())
        policy_.onRecording();
}

void InstrumentWait::startOver() {
    received_ = {};
    lineDeadline_ = Waiter::never;
    lineGivenUp_ = Waiter::never;
}

} // namespace tally
