// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ResponsePolicy.h"

#include "core/Text1252.h"
#include "link/Instruments.h"
#include "link/PromptTexts.h"

namespace tally {

const char* const terminating = "Terminating the initialization";

namespace {

const char* const notVoltmeter = "Not Voltmeter";
const char* const noResponse = "No response in 2.5 seconds at each of two different baud rates.\r\n\r\n";
const char* const erroneous =
    "\r\nAfter the 2nd timeout, the following erroneous Line1 characters had been received:";
const char* const invalidFragment = "Invalid header fragment received: '";

// Call points of the error reports.
constexpr int atSwitch = 215;
constexpr int atGiveUp = 217;

std::string gaveUp(const HeaderScan& came) {
    const std::string& fragment = came.line();
    if (fragment.empty())
        return std::string(noResponse) + tryAnotherType;
    if (fragment.size() < tokenLength)
        return fragmentText(fragment);
    return erroneous + toUtf8(fragment) + "\r\n" + tryAnotherType;
}

std::optional<SessionEnd> refuseAmmeter(const HeaderScan& came) {
    const std::string& fragment = came.line();
    if (fragment.size() != tokenLength || fragment[2] != 'A')
        return {};
    return SessionEnd{EndKind::wrongInstrument, {notVoltmeter}};
}

} // namespace

std::string fragmentText(const std::string& fragment) {
    return invalidFragment + toUtf8(fragment) + "'\r\n" + tryAnotherType;
}

WaitPolicy responsePolicy(const InstrumentState& instrument, std::int64_t waitFor) {
    WaitPolicy policy;
    policy.tokenAtOnce = false; // the rest of its line is shown with a wrong token
    policy.waitFor = waitFor;
    policy.silent = gaveUp;
    policy.lineGone = terminating;
    policy.atSwitch = atSwitch;
    policy.atGiveUp = atGiveUp;
    if (isVoltageRecorder(instrument.instSelection))
        policy.refuses = refuseAmmeter;
    return policy;
}

} // namespace tally
