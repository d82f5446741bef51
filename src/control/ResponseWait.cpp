// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ResponseWait.h"

#include "core/Fault.h"
#include "core/Text1252.h"
#include "link/Instruments.h"
#include "link/PromptTexts.h"

namespace tally {

namespace {

constexpr std::size_t tokenLength = 3;

// Call points of the error reports.
constexpr int atSwitch = 215;
constexpr int atGiveUp = 217;

const char* const portClosed = "Terminating the initialization";
const char* const notVoltmeter = "Not Voltmeter";
const char* const noResponse = "No response in 2.5 seconds at each of two different baud rates.\r\n\r\n";
const char* const erroneous =
    "\r\nAfter the 2nd timeout, the following erroneous Line1 characters had been received:";
const char* const invalidFragment = "Invalid header fragment received: '";

} // namespace

bool ResponseWait::automatic() const {
    return session_.instrument.instSelection == autoSelectType;
}

bool ResponseWait::run() {
    Step step = Step::goOn;
    if (automatic())
        timer_.StartTimer();
    while (step == Step::goOn) {
        switch (session_.until(timer_.deadline())) {
        case Wake::due:
            step = Timer1();
            break;
        case Wake::cancelled:
            step = Step::ended;
            break;
        case Wake::data:
            step = onCharacter();
            break;
        }
    }
    abortFrmErrorFlag_ = step == Step::ended;
    return step == Step::complete;
}

ResponseWait::Step ResponseWait::Timer1() {
    timer_.logTick();
    if (timer_.triedBoth())
        return giveUp();
    session_.gErrorCallPoint = atSwitch;
    return switchSettings();
}

ResponseWait::Step ResponseWait::switchSettings() {
    scan_.restart();
    try {
        return timer_.FlipPortSettings() == Wake::cancelled ? Step::ended : Step::goOn;
    } catch (const Fault&) {
        return fail(portClosed);
    }
}

ResponseWait::Step ResponseWait::giveUp() {
    session_.gErrorCallPoint = atGiveUp;
    timer_.disable();
    const std::string& fragment = scan_.line();
    if (fragment.empty())
        return fail(std::string(noResponse) + tryAnotherType);
    if (fragment.size() < tokenLength)
        return fail(invalidFragment + toUtf8(fragment) + "'\r\n" + tryAnotherType);
    return fail(erroneous + toUtf8(fragment) + "\r\n" + tryAnotherType);
}

ResponseWait::Step ResponseWait::onCharacter() {
    const std::string input = session_.Input();
    if (input.empty())
        return session_.lost() ? fail(portClosed) : Step::goOn;
    scan_.feed(input[0]);
    const std::string& fragment = scan_.line();
    if (isVoltageRecorder(session_.instrument.instSelection) && fragment.size() == tokenLength &&
        fragment[2] == 'A')
        return fail(notVoltmeter);
    if (automatic()) {
        // A wrong token waits for the timer: the rest of its line is shown with it.
        if (scan_.token() != HeaderScan::Token::valid)
            return Step::goOn;
        if (timer_.running())
            timer_.StopTimer();
    }
    if (!scan_.lineComplete())
        return Step::goOn;
    if (fragment.size() < tokenLength)
        return fail(invalidFragment + toUtf8(fragment) + "'\r\n" + tryAnotherType);
    return Step::complete;
}

ResponseWait::Step ResponseWait::fail(const std::string& text) {
    const std::string problem = session_.line.problem();
    if (!problem.empty())
        session_.panel.appendLog(problem + "\r\n");
    session_.prompt.tell(text);
    session_.closePort();
    return Step::ended;
}

} // namespace tally
