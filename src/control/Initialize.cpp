// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Initialize.h"

#include "control/ModeLetter.h"
#include "control/ReadBack.h"
#include "control/ResponseWait.h"
#include "core/Fault.h"
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

const char* const portClosed = "Terminating the initialization";

constexpr char selectMode = '\x09'; // TAB: the instrument has modes to choose from
constexpr char noModes = '\x14';    // DC4: it has none
constexpr char ctrlZ = '\x1a';
constexpr std::int64_t beforeCommand = 200;    // milliseconds
constexpr std::int64_t beforeInitString = 500; // milliseconds

} // namespace

bool mnuItemInitialize_Click(Line& line, const InstrumentState& instrument, Prompt& prompt) {
    if (prompt.show({.text = warning, .buttons = Buttons::OkCancel, .exclamation = true}) == Answer::Cancel)
        return false;
    try {
        probePort(line, instrument.gCommPort);
    } catch (const Fault&) {
        prompt.tell(badPortText);
        return false;
    }
    return true;
}

InitializeSession::InitializeSession(Line& line, Waiter& waiter, Prompt& prompt, Panel& panel,
                                     InstrumentState& instrument, int& gErrorCallPoint)
    : label_(panel), session_(line, waiter, prompt, label_, instrument, noJournal_, gErrorCallPoint) {
    session_.stopsAtCtrlZ = false;
}

int InitializeSession::Initialize(char IMode) {
    Outcome outcome = Outcome::another;
    while (outcome == Outcome::another || outcome == Outcome::abandoned)
        outcome = one(IMode);
    return count_;
}

InitializeSession::Outcome InitializeSession::one(char IMode) {
    session_.waiter.resetCancel();
    const Message connect = {.text = connectionPrompt(session_.instrument), .buttons = Buttons::OkCancel};
    if (session_.prompt.show(connect) == Answer::Cancel)
        return Outcome::ended;
    session_.panel.status(initializing);
    const PortGuard guard(session_);
    try {
        session_.openPort();
    } catch (const Fault&) {
        session_.prompt.tell(badPortText);
        return Outcome::ended;
    }
    return exchange(IMode);
}

InitializeSession::Outcome InitializeSession::exchange(char IMode) {
    ResponseWait wait(session_);
    if (!wait.run())
        return Outcome::ended;
    const char mode = wait.receivedText()[2];
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
    if (!answer)
        return stopped();
    session_.closePort();
    return report(*answer, wait.lowBattery());
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
    return true;
}

// The next character; nothing after a cancel or when the line is gone.
std::optional<char> InitializeSession::next() {
    for (;;) {
        if (session_.until(Waiter::never) == Wake::cancelled)
            return {};
        const std::string input = session_.Input();
        if (!input.empty())
            return input[0];
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
    session_.prompt.tell(portClosed);
    return Outcome::ended;
}

InitializeSession::Outcome InitializeSession::report(const std::string& answer, bool lowBattery) {
    Prompt& prompt = session_.prompt;
    ++count_;
    if (lowBattery)
        prompt.show({.text = std::string("Initialization is complete, but...\r\n\r\n") + lowBatteryText,
                     .title = "WARNING",
                     .exclamation = true});
    const ReadBack settings = readBack(answer);
    if (settings.blankMode)
        prompt.tell(blankModeText);
    const Message question = {
        .text = settings.report + anotherQuestion, .buttons = Buttons::YesNo, .defaultAnswer = Answer::No};
    return prompt.show(question) == Answer::Yes ? Outcome::another : Outcome::done;
}

} // namespace tally
