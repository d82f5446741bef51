// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/HeaderWait.h"

#include "core/Numbers.h"
#include "core/Text1252.h"
#include "link/PromptTexts.h"

#include <algorithm>

namespace tally {

namespace {

const char* const waiting = "WAITING FOR RESPONSE FROM INSTRUMENT";
const char* const ready = "READY";

std::string noResponse(std::int64_t milliseconds) {
    return "No response in " + Str(static_cast<double>(milliseconds) / 1000) + " seconds";
}

std::string incompleteHeader(const std::string& line1) {
    return "By the 2nd timeout, the following incomplete header had been received:\r\nLine1 = '" +
           toUtf8(line1.substr(0, 8)) + " '. Length=" + std::to_string(line1.size());
}

} // namespace

HeaderWait::HeaderWait(Session& session, std::int64_t waitFor)
    : session_(session), timer_(session), waitFor_(waitFor) {
    if (waitFor != Waiter::never)
        deadline_ = session.waiter.now() + waitFor;
}

bool HeaderWait::run() {
    session_.panel.prompt(waiting);
    if (automatic())
        timer_.StartTimer();
    for (Step step = Step::goOn;;) {
        switch (session_.until(std::min(timer_.deadline(), deadline_))) {
        case Wake::due:
            step = onDue();
            break;
        case Wake::cancelled:
            return false;
        case Wake::data:
            step = onCharacter();
            break;
        }
        if (step != Step::goOn)
            return step == Step::complete;
    }
}

HeaderWait::Step HeaderWait::onDue() {
    if (!timer_.due())
        return fail(noResponse(waitFor_) + ".");
    timer_.logTick();
    if (!timer_.triedBoth())
        return flip("No response.");
    timer_.disable();
    const std::string what =
        scan_.started() ? incompleteHeader(scan_.line())
                        : noResponse(ResponseTimer::interval) + " at each of two different baud rates.";
    return fail(what + "\r\n" + tryAnotherType);
}

HeaderWait::Step HeaderWait::onCharacter() {
    const std::string input = session_.Input();
    if (input.empty())
        return session_.lost() ? fail(session_.line.problem()) : Step::goOn;
    if (scan_.count() == 0)
        session_.panel.prompt(ready);
    scan_.feed(input[0]);
    if (automatic() && !headerValid_ && scan_.token() != HeaderScan::Token::pending)
        return checkToken();
    // An instrument that never ends its line is not listened to for ever.
    return scan_.lineComplete() || scan_.count() >= HeaderScan::longest ? Step::complete : Step::goOn;
}

HeaderWait::Step HeaderWait::checkToken() {
    if (scan_.token() == HeaderScan::Token::valid) {
        headerValid_ = true;
        timer_.StopTimer();
        timer_.setTriedBoth();
        return Step::goOn;
    }
    if (!timer_.triedBoth())
        return flip("Bad header.");
    timer_.StopTimer();
    const std::string line1 = toUtf8(scan_.line());
    if (scan_.line().size() < 3)
        return fail("Invalid header fragment received: '" + line1 + "'\r\n" + tryAnotherType);
    return fail("After the 2nd timeout, the following erroneous Line1 characters had been received:" + line1 +
                "\r\n" + tryAnotherType);
}

HeaderWait::Step HeaderWait::flip(const std::string& reason) {
    if (timer_.FlipPortSettings(reason) == Wake::cancelled)
        return Step::ended;
    scan_.restart();
    return Step::goOn;
}

HeaderWait::Step HeaderWait::fail(const std::string& text) {
    session_.prompt.tell(text);
    return Step::ended;
}

} // namespace tally
