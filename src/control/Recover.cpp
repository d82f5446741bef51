// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Recover.h"

#include "core/Fault.h"
#include "core/Text1252.h"
#include "link/InformationReport.h"
#include "link/Instruments.h"
#include "link/PromptTexts.h"

namespace tally {

namespace {

const char* const caution = "                           CAUTION  \r"
                            "       DATA MAY NOT BE RECOVERED IF\r"
                            "            INSTRUMENT HAD BEEN IN \r"
                            " CONTINUOUS MODE AND MEMORY FILLED \r\r";
const char* const notValid = "     NOT A VALID INSTRUMENT    \r         REMOVE THE CABLE NOW       \r\r";
const char* const notVoltmeter = "Not Voltmeter";
const char* const cableOff = "         OK TO REMOVE THE CABLE NOW       \r\r";
const char* const notRecoverable = "    CONTINUOUS DATA; NOT RECOVERABLE     \r"
                                   "  CANNOT DETERMINE STOPPED TIME \r\r";

constexpr std::size_t mostCharacters = 80100;
constexpr std::size_t shownCharacters = 47;
constexpr std::size_t showEvery = 1000; // characters between two steps of the progress bar
constexpr int progressMaximum = 20000;
constexpr int progressAfterHeader = 1000;
constexpr char ctrlZ = '\x1a';

std::string autoSelectRefusal() {
    return "The 'Recover' feature is not implemented for the case of the \r\n"
           "instrument type being 'Auto Select'.\r\n"
           "\r\n"
           "Instead do a 'Status check' to see what instrument type the Tallyline\r\n"
           "ends up treating is as. (It will most likely be " +
           InstrumentName(7) + " or " + InstrumentName(8) +
           ".)\r\n"
           "\r\n"
           "Then use Options > Instrument Selection to specifically select\r\n"
           "the type of instrument being used, and the 'Recover' feature will\r\n"
           "then be available.";
}

// Puts line, dialog and journal in order at the end of a recover, however it ends.
class RecoverEnd {
public:
    explicit RecoverEnd(Session& session) : session_(session) {}
    ~RecoverEnd() {
        session_.closePort();
        session_.waiter.resetCancel();
        session_.panel.progressVisible(false);
        if (!judged)
            session_.journal.end(JournalState::interrupted);
    }
    RecoverEnd(const RecoverEnd&) = delete;
    RecoverEnd& operator=(const RecoverEnd&) = delete;

    bool judged = false; // the journal knows already what became of the text

private:
    Session& session_;
};

} // namespace

bool RecoverSession::mnuItemRecover_Click() {
    session_.waiter.resetCancel();
    if (session_.instrument.instSelection == autoSelectType) {
        session_.prompt.tell(autoSelectRefusal());
        return false;
    }
    session_.prompt.tell(caution);
    try {
        probePort(session_.line, session_.instrument.gCommPort);
    } catch (const Fault&) {
        session_.prompt.tell(badPortText);
        return false;
    }
    session_.panel.prompt(connectionPrompt(session_.instrument, false));
    return true;
}

std::optional<PendingDownload> RecoverSession::RecoverProc(Files& files, const std::string& temporary) {
    const InstrumentState& instrument = session_.instrument;
    session_.journal.begin({.commPort = instrument.gCommPort,
                            .instrumentType = instrument.instSelection,
                            .settings = instrument.portSettings,
                            .pcTime = session_.waiter.localTime(),
                            .command = "recover"});
    RecoverEnd end(session_);
    session_.panel.status(" Cancel or Escape to quit\rCOM" + std::to_string(instrument.gCommPort) +
                          "  in use");
    session_.line.DTREnable(true);
    try {
        session_.openPort();
    } catch (const Fault&) {
        session_.prompt.tell(badPortText);
        return {};
    }
    session_.panel.progress(0);
    const Step step = receive();
    session_.closePort();
    if (step != Step::complete) {
        end.judged = step == Step::notValid || step == Step::notVoltmeter;
        if (end.judged)
            session_.journal.end(JournalState::refused);
        tellWhy(step);
        warnLowBattery();
        return {};
    }
    end.judged = true;
    session_.journal.end(JournalState::received);
    session_.panel.progressVisible(false);
    session_.prompt.tell(cableOff);
    auto recovered = join() ? workOut(files, temporary) : std::nullopt;
    warnLowBattery();
    return recovered;
}

RecoverSession::Step RecoverSession::receive() {
    for (Step step = Step::goOn;;) {
        if (session_.until(Waiter::never) == Wake::cancelled)
            return Step::cancelled;
        const std::string input = session_.Input();
        if (!input.empty())
            step = onCharacter(input[0]);
        else if (session_.lost())
            return Step::lost;
        if (step != Step::goOn)
            return step;
    }
}

RecoverSession::Step RecoverSession::onCharacter(char c) {
    if (text_.empty())
        session_.panel.progressVisible(true);
    text_ += scan_.feed(c);
    if (text_.size() > mostCharacters)
        throw fault::subscript();
    countProgress();
    return judge(c);
}

RecoverSession::Step RecoverSession::judge(char c) const {
    const std::size_t offset = scan_.started() ? text_.size() - 1 - scan_.startIndex() : 0;
    const bool cutShort = c == ctrlZ && offset < recoverMarkOffset;
    if (cutShort || (offset == recoverMarkOffset && c != 'T'))
        return Step::notValid;
    if (offset == recoverTypeOffset && c == 'A' && isVoltageRecorder(session_.instrument.instSelection))
        return Step::notVoltmeter;
    return c == ctrlZ ? Step::complete : Step::goOn;
}

void RecoverSession::countProgress() {
    ++progress_;
    if (scan_.started() && !headerPassed_ && (text_.back() == '\r' || text_.back() == '\n')) {
        headerPassed_ = true;
        progress_ = progressAfterHeader;
    }
    if (progress_ > progressMaximum)
        progress_ = 0;
    if (text_.size() % showEvery == 0)
        session_.panel.progress(progress_);
}

void RecoverSession::tellWhy(Step step) {
    switch (step) {
    case Step::notValid:
        return session_.prompt.tell(notValid);
    case Step::notVoltmeter:
        return session_.prompt.tell(notVoltmeter);
    case Step::lost:
        return session_.prompt.tell(session_.line.problem());
    default:
        return;
    }
}

// Shows what has come and that it is being worked on. False when the user has cancelled.
bool RecoverSession::join() {
    session_.panel.status(toUtf8(text_.substr(0, shownCharacters)) + "\rPROCESSING DATA; WAIT");
    session_.panel.progressVisible(true);
    for (std::size_t done = 0; done < text_.size(); done += showEvery) {
        if (session_.waiter.cancelRequested())
            return false;
        session_.panel.progress(static_cast<int>(done % (progressMaximum + 1)));
    }
    return true;
}

std::optional<PendingDownload> RecoverSession::workOut(Files& files, const std::string& temporary) {
    const RecoverHeader header = recoverHeader(text_);
    files.write(temporary, quotedText(text_));
    const int readings = countReadings(files.read(temporary, text_.size() + 4));
    if (overwritten(header.mode, readings, session_.instrument.maxSamples)) {
        session_.prompt.tell(notRecoverable);
        return {};
    }
    return accept(recoverText(text_, header, readings));
}

PendingDownload RecoverSession::accept(const RecoveredText& recovered) {
    session_.journal.accepted(recovered.text);
    session_.panel.prompt(
        informationReport(recovered.text, RecoveredFacts{screenTime(recovered.start),
                                                         screenTime(recovered.stopped), recovered.readings}));
    session_.prompt.tell(" PROCEED");
    return {recovered.text, session_.journal.id()};
}

void RecoverSession::warnLowBattery() {
    if (scan_.lowBattery())
        session_.prompt.show({.text = lowBatteryText, .title = "WARNING", .exclamation = true});
}

} // namespace tally
