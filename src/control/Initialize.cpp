// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Initialize.h"

#include "control/KnownDownloads.h"
#include "control/ModeLetter.h"
#include "control/ResponsePolicy.h"
#include "core/Header.h"
#include "core/Text1252.h"
#include "link/PromptTexts.h"

namespace tally {

namespace {

const char* const warning = "     Warning! - This Function will clear\r"
                            "    All previous Data from the instrument\r"
                            "Select 'OK' to continue, or  'CANCEL' to abort";

const char* const initializing = "INITIALIZING...\r"
                                 "  - May take around 15 seconds\r\r"
                                 "(You can cancel at any time)";

constexpr char selectMode = '\x09'; // TAB: the instrument has modes to choose from
constexpr char noModes = '\x14';    // DC4: it has none
constexpr char ctrlZ = '\x1a';
constexpr std::int64_t beforeCommand = 200;    // milliseconds
constexpr std::int64_t beforeInitString = 500; // milliseconds

} // namespace

SessionResult<void> prepareInitialize(Session& session) {
    const Message question = {
        .text = warning, .buttons = Buttons::OkCancel, .exclamation = true, .defaultAnswer = Answer::Cancel};
    if (session.prompt.show(question) == Answer::Cancel)
        return tl::make_unexpected(SessionEnd{EndKind::declined});
    return session.probe();
}

InitializeSession::InitializeSession(const SessionServices& services, Panel& panel,
                                     const InitializeRules& rules)
    : label_(panel), session_(services, label_), hint_(session_), rules_(rules) {}

SessionResult<ReadBack> InitializeSession::Initialize(char IMode) {
    Outcome outcome = Outcome::another;
    last_.reset();
    while (outcome == Outcome::another || (outcome == Outcome::abandoned && !rules_.once))
        outcome = one(IMode);
    if (!last_)
        return tl::make_unexpected(end_);
    return *last_;
}

InitializeSession::Outcome InitializeSession::one(char IMode) {
    session_.waiter.resetCancel();
    end_ = {};
    const Message connect = {.text = connectionPrompt(session_.instrument),
                             .buttons = Buttons::OkCancel,
                             .defaultAnswer = Answer::Cancel};
    if (session_.prompt.show(connect) == Answer::Cancel)
        return Outcome::ended;
    session_.panel.status(initializing);
    const PortGuard guard(session_);
    if (const auto opened = session_.open(); !opened) {
        end_ = opened.error();
        return Outcome::ended;
    }
    return exchange(IMode);
}

// The response header of the instrument; nothing when none came, which was told.
std::optional<HeaderScan> InitializeSession::waitForResponse() {
    auto received = InstrumentWait(session_, responsePolicy(session_.instrument, rules_.waitFor)).run();
    if (received && received->scan.line().size() >= tokenLength)
        return received->scan;
    end_ = received ? session_.end(EndKind::wrongResponse, {fragmentText(received->scan.line())}).value()
                    : received.error();
    return {};
}

// Whether the memory of an instrument may go: not while its download waits to be saved, unless the user says
// so.
bool InitializeSession::mayErase(const std::string& serial) {
    const std::string unsaved = unsavedDownloadsOf(serial, session_.journal);
    if (unsaved.empty())
        return true;
    const Message question = {.text =
                                  unsaved + "\r\nInitializing erases the instrument. Initialize it anyway?",
                              .buttons = Buttons::YesNo,
                              .exclamation = true,
                              .defaultAnswer = Answer::No};
    if (session_.prompt.show(question) == Answer::Yes)
        return true;
    end_ = {EndKind::unsavedDownload, {unsaved}};
    return false;
}

InitializeSession::Outcome InitializeSession::exchange(char IMode) {
    const auto response = waitForResponse();
    abortFrmErrorFlag_ = !response;
    if (abortFrmErrorFlag_ || !mayErase(std::string(headerField(response->line(), column::serial))))
        return Outcome::ended;
    const char mode = response->line()[2];
    label_.append("\r\nIMode$=" + toUtf8(std::string(1, mode)));
    session_.pause(session_.waiter.now() + beforeCommand);
    const bool hasModes = mode != ' ';
    if (!send(std::string(1, hasModes ? selectMode : noModes)))
        return stopped();
    for (std::optional<char> c; c != 'T';)
        if (!(c = next()))
            return stopped();

    const std::string Initstring = initString(hasModes ? IMode : ' ', session_.waiter.localTime());
    session_.pause(session_.waiter.now() + beforeInitString);
    label_.append("\r\nInitstring=" + Initstring);
    label_.append("\r\nInstrument is initializing...");
    if (!send(Initstring))
        return stopped();
    const auto answer = readAnswer();
    hint_.hide();
    if (!answer)
        return stopped();
    session_.closePort();
    return report(*answer, response->lowBattery());
}

// The read-back: from the family initial to ctrl/Z.
std::optional<std::string> InitializeSession::readAnswer() {
    HeaderScan start;
    std::string answer;
    while (const auto c = next()) {
        const char kept = start.feed(*c);
        // What stands beyond the header is of no interest, however much comes.
        if (start.started() && answer.size() < HeaderScan::longest)
            answer += kept;
        if (start.started() && kept == ctrlZ)
            return answer;
    }
    return {};
}

// Sends unless the user has cancelled or the line is gone.
bool InitializeSession::send(std::string_view characters) {
    if (session_.waiter.cancelRequested() || !session_.line.isOpen())
        return false;
    session_.line.Output(characters);
    hint_.start();
    return true;
}

// The next character; nothing after a cancel or when the line is gone.
std::optional<char> InitializeSession::next() {
    for (;;) {
        const Wake wake = session_.until(hint_.deadline());
        if (wake == Wake::cancelled)
            return {};
        if (wake == Wake::due) {
            hint_.onDue();
            continue;
        }
        const std::string input = session_.Input();
        if (!input.empty()) {
            hint_.heard();
            return input[0];
        }
        if (session_.lost())
            return {};
    }
}

// Why the exchange went no further: a cancel leads back to the connection prompt, a line that is gone to the
// end.
InitializeSession::Outcome InitializeSession::stopped() {
    if (session_.waiter.cancelRequested() || session_.line.isOpen())
        return Outcome::abandoned;
    label_.append("\r\n" + session_.line.problem());
    end_ = session_.end(EndKind::lineGone, {terminating, session_.line.problem()}).value();
    return Outcome::ended;
}

InitializeSession::Outcome InitializeSession::report(const std::string& answer, bool lowBattery) {
    Prompt& prompt = session_.prompt;
    if (lowBattery)
        prompt.show({.text = std::string("Initialization is complete, but...\r\n\r\n") + lowBatteryText,
                     .title = "WARNING",
                     .exclamation = true});
    const ReadBack settings = readBack(answer);
    last_ = settings;
    if (settings.blankMode)
        prompt.tell(blankModeText);
    if (rules_.once)
        return Outcome::done;
    const Message question = {
        .text = settings.report + anotherQuestion, .buttons = Buttons::YesNo, .defaultAnswer = Answer::No};
    return prompt.show(question) == Answer::Yes ? Outcome::another : Outcome::done;
}

} // namespace tally
