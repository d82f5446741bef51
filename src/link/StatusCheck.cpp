// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/StatusCheck.h"

#include "core/ModeTable.h"
#include "core/Text1252.h"
#include "link/HeaderScan.h"
#include "link/InstrumentWait.h"
#include "link/Instruments.h"
#include "link/PromptTexts.h"

#include <string_view>
#include <utility>

namespace tally {

namespace {

// Where risky steps of the check stand; a cancel is 114.
constexpr int beforeOpening = 111;
constexpr int beforeWaiting = 112;
constexpr int beforeReading = 113;
constexpr int cancelled = 114;

const char* const waiting = "WAITING FOR RESPONSE FROM INSTRUMENT";
const char* const ready = "READY";
const char* const anotherQuestion = "Status check complete. You may disconnect the instrument now.\r\n"
                                    " Do you want to do another?     ";

std::string incompleteHeader(const std::string& line1) {
    return "By the 2nd timeout, the following incomplete header had been received:\r\nLine1 = '" +
           toUtf8(line1.substr(0, 8)) + " '. Length=" + std::to_string(line1.size());
}

std::string silent(const HeaderScan& came) {
    const std::string what =
        came.started() ? incompleteHeader(came.line())
                       : noResponseText(ResponseTimer::interval) + " at each of two different baud rates.";
    return what + "\r\n" + tryAnotherType;
}

std::string invalidFragment(const std::string& line1) {
    return "Invalid header fragment received: '" + toUtf8(line1) + "'\r\n" + tryAnotherType;
}

std::string wrongToken(const HeaderScan& came) {
    if (came.line().size() < 3)
        return invalidFragment(came.line());
    return "After the 2nd timeout, the following erroneous Line1 characters had been received:" +
           toUtf8(came.line()) + "\r\n" + tryAnotherType;
}

// With automatic selection only the token begins a header.
bool mayBegin(std::string_view text, bool automatic) {
    HeaderScan scan;
    for (const char c : text.substr(0, 3))
        scan.feed(c);
    return scan.started() && scan.startIndex() == 0 &&
           (!automatic || scan.token() == HeaderScan::Token::valid);
}

} // namespace

std::string asSent(const Received& received) {
    std::string text = received.text;
    if (received.lowBattery())
        text[0] = lowerCase(text[0]);
    return text;
}

std::optional<HeaderScan> readableHeader(std::string_view text, bool automatic, bool cut) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!mayBegin(text.substr(at), automatic))
            continue;
        HeaderScan scan;
        for (std::size_t i = at; i < text.size() && !scan.lineComplete(); ++i)
            scan.feed(text[i]);
        if ((cut || scan.lineComplete()) && hasStatusFields(scan.line()))
            return scan;
    }
    return {};
}

void ReportError(Prompt& prompt, const Fault& fault, int gErrorCallPoint) {
    prompt.tell("In status.StatusCheck: gErrorCallPoint = " + std::to_string(gErrorCallPoint) + "\r\n" +
                faultReport(fault));
}

void StatusCheckSession::prepare() {
    session_.waiter.resetCancel();
    if (!session_.line.isOpen())
        return;
    session_.prompt.tell("In TLY.mnuItemStatusCheck_Click: Port found open. So I'll close it.");
    session_.closePort();
}

SessionResult<StatusFields> StatusCheckSession::StatusCheck() {
    for (;;) {
        const Message question = {.text = connectionPrompt(session_.instrument),
                                  .buttons = Buttons::OkCancel};
        if (session_.prompt.show(question) == Answer::Cancel)
            return Session::cancelled();
        auto fields = checkReported();
        if (!fields)
            return fields;
        if (session_.prompt.show(
                {.text = anotherQuestion, .buttons = Buttons::YesNo, .defaultAnswer = Answer::No}) ==
            Answer::No)
            return fields;
    }
}

// Run-time faults of the check have a report of their own.
SessionResult<StatusFields> StatusCheckSession::checkReported() {
    try {
        const PortGuard guard(session_);
        return checkOnce();
    } catch (const Fault& fault) {
        ReportError(session_.prompt, fault, session_.gErrorCallPoint);
        return tl::make_unexpected(SessionEnd{EndKind::wrongResponse, {fault.what()}});
    }
}

SessionResult<Received> StatusCheckSession::receive() {
    WaitPolicy policy;
    policy.waitFor = waitFor_;
    policy.silent = silent;
    policy.wrongToken = wrongToken;
    policy.onFirst = [this] { session_.panel.prompt(ready); };
    policy.readable = [this](const Received& received) {
        return readableHeader(asSent(received), automatic(), false).has_value();
    };
    session_.panel.prompt(waiting);
    return InstrumentWait(session_, std::move(policy)).run();
}

SessionResult<StatusFields> StatusCheckSession::checkOnce() {
    session_.gErrorCallPoint = beforeOpening;
    if (const auto opened = session_.open(); !opened)
        return tl::make_unexpected(opened.error());
    session_.gErrorCallPoint = beforeWaiting;
    const auto received = receive();
    if (!received) {
        if (received.error().kind == EndKind::cancelled)
            session_.gErrorCallPoint = cancelled;
        return tl::make_unexpected(received.error());
    }
    session_.gErrorCallPoint = beforeReading;
    const auto header = readableHeader(asSent(*received), automatic(), true);
    if (!header)
        return session_.end(EndKind::wrongResponse, {invalidFragment(received->scan.line())});
    return show(readStatusHeader(header->line(), header->lowBattery()));
}

StatusFields StatusCheckSession::show(StatusFields fields) {
    if (automatic())
        fields.autoSelected = InstrumentName(session_.instrument.instAutoCurrent);
    session_.panel.prompt(fields.text());
    if (fields.lowBattery)
        session_.prompt.show({.text = std::string("Status Check OK but...\r\n\r\n") + lowBatteryText,
                              .title = "WARNING",
                              .exclamation = true});
    session_.gErrorCallPoint = 0;
    return fields;
}

bool StatusCheckSession::automatic() const {
    return session_.instrument.instSelection == autoSelectType;
}

} // namespace tally
