// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/StatusCheck.h"

#include "core/Text1252.h"
#include "link/HeaderWait.h"
#include "link/Instruments.h"
#include "link/PromptTexts.h"

namespace tally {

namespace {

// Where risky steps of the check stand; a cancel is 114.
constexpr int beforeOpening = 111;
constexpr int beforeWaiting = 112;
constexpr int beforeReading = 113;
constexpr int cancelled = 114;

const char* const anotherQuestion = "Status check complete. You may disconnect the instrument now.\r\n"
                                    " Do you want to do another?     ";

} // namespace

void ReportError(Prompt& prompt, const Fault& fault, int gErrorCallPoint) {
    prompt.tell("In status.StatusCheck: gErrorCallPoint = " + std::to_string(gErrorCallPoint) + "\r\n" +
                faultReport(fault));
}

void StatusCheckSession::mnuItemStatusCheck_Click() {
    session_.waiter.resetCancel();
    if (!session_.line.isOpen())
        return;
    session_.prompt.tell("In TLY.mnuItemStatusCheck_Click: Port found open. So I'll close it.");
    session_.closePort();
}

std::optional<StatusFields> StatusCheckSession::StatusCheck() {
    for (;;) {
        const Message question = {.text = connectionPrompt(session_.instrument),
                                  .buttons = Buttons::OkCancel};
        if (session_.prompt.show(question) == Answer::Cancel)
            return {};
        std::optional<StatusFields> fields;
        try {
            const PortGuard guard(session_);
            fields = checkOnce();
        } catch (const Fault& fault) {
            ReportError(session_.prompt, fault, session_.gErrorCallPoint);
        }
        if (!fields)
            return {};
        if (session_.prompt.show(
                {.text = anotherQuestion, .buttons = Buttons::YesNo, .defaultAnswer = Answer::No}) ==
            Answer::No)
            return fields;
    }
}

std::optional<StatusFields> StatusCheckSession::checkOnce() {
    session_.gErrorCallPoint = beforeOpening;
    try {
        session_.openPort();
    } catch (const Fault&) {
        session_.prompt.tell(badPortText);
        return {};
    }
    session_.gErrorCallPoint = beforeWaiting;
    HeaderWait wait(session_, waitFor_);
    if (!wait.run()) {
        if (session_.waiter.cancelRequested())
            session_.gErrorCallPoint = cancelled;
        return {};
    }
    session_.gErrorCallPoint = beforeReading;
    auto fields = readStatusHeader(wait.scan().line(), wait.scan().lowBattery());
    if (!fields) {
        session_.prompt.tell("Invalid header fragment received: '" + toUtf8(wait.scan().line()) + "'\r\n" +
                             tryAnotherType);
        return {};
    }
    if (session_.instrument.instSelection == autoSelectType)
        fields->autoSelected = InstrumentName(session_.instrument.instAutoCurrent);
    session_.panel.prompt(fields->text());
    if (fields->lowBattery)
        session_.prompt.show({.text = std::string("Status Check OK but...\r\n\r\n") + lowBatteryText,
                              .title = "WARNING",
                              .exclamation = true});
    session_.gErrorCallPoint = 0;
    return fields;
}

} // namespace tally
