// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/WaitHint.h"

#include "link/Instruments.h"
#include "link/PromptTexts.h"

namespace tally {

namespace {

std::string typeName(int code) {
    const std::string name = InstrumentName(code);
    return name.empty() ? std::string(optionCaption(code)) : name;
}

} // namespace

void WaitHint::start() {
    hide();
    heard_ = false;
    since_ = session_.waiter.localTime();
    deadline_ = session_.waiter.now() + after;
}

void WaitHint::onDue() {
    if (heard_) {
        start();
        return;
    }
    deadline_ = Waiter::never;
    shown_ = true;
    const InstrumentState& instrument = session_.instrument;
    session_.panel.hint("Nothing has come since " + formatTime(since_, "%H:%M") +
                        ". Check that the cable sits firmly at both ends, that a transfer switch is set to "
                        "TRANSFER, and that " +
                        portName(instrument) + " and the type " + typeName(instrument.instSelection) +
                        " are the right ones. Cancel or Escape ends the wait.");
}

void WaitHint::hide() {
    if (shown_)
        session_.panel.hint("");
    shown_ = false;
    deadline_ = Waiter::never;
}

} // namespace tally
