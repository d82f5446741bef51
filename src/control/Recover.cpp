// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Recover.h"

#include "core/Fault.h"
#include "core/Text1252.h"
#include "link/InformationReport.h"
#include "link/InstrumentWait.h"
#include "link/Instruments.h"
#include "link/PromptTexts.h"

#include <algorithm>

namespace tally {

namespace {

const char* const caution = "                           CAUTION  \r"
                            "       DATA MAY NOT BE RECOVERED IF\r"
                            "            INSTRUMENT HAD BEEN IN \r"
                            " CONTINUOUS MODE AND MEMORY FILLED \r\r";
const char* const cableOff = "         OK TO REMOVE THE CABLE NOW       \r\r";
constexpr std::size_t maximumCharacters = 80100;
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

SessionResult<void> RecoverSession::prepare() {
    session_.waiter.resetCancel();
    if (session_.instrument.instSelection == autoSelectType)
        return session_.end(EndKind::wrongInstrument, {autoSelectRefusal()});
    session_.prompt.tell(caution);
    if (auto there = session_.probe(); !there)
        return there;
    session_.panel.prompt(connectionPrompt(session_.instrument, false));
    return {};
}

SessionResult<PendingDownload> RecoverSession::RecoverProc(Files& files, const std::string& temporary) {
    session_.journal.begin(journalHeader(session_, "recover"));
    RecoverEnd end(session_);
    session_.panel.status(" Cancel or Escape to quit\r" + portName(session_.instrument) + "  in use");
    session_.line.DTREnable(true);
    if (const auto opened = session_.open(); !opened)
        return tl::make_unexpected(opened.error());
    session_.panel.progress(0);
    const auto received = receive();
    session_.closePort();
    if (!received) {
        end.judged = received.error().kind == EndKind::wrongInstrument;
        if (end.judged)
            session_.journal.end(JournalState::refused);
        warnLowBattery();
        return tl::make_unexpected(received.error());
    }
    end.judged = true;
    session_.journal.end(JournalState::received);
    session_.panel.progressVisible(false);
    session_.prompt.tell(cableOff);
    warnOfFollowers(followed_, session_.prompt);
    auto recovered = join() ? workOut(files, temporary) : Session::cancelled();
    warnLowBattery();
    return recovered;
}

SessionResult<void> RecoverSession::receive() {
    const std::int64_t deadline =
        waitFor_ == Waiter::never ? Waiter::never : session_.waiter.now() + waitFor_;
    if (deadline == Waiter::never)
        hint_.start();
    for (;;) {
        const std::int64_t bound = text_.empty() ? deadline : Waiter::never;
        const Wake wake = session_.until(std::min(bound, hint_.deadline()));
        if (wake == Wake::cancelled)
            return Session::cancelled();
        if (wake == Wake::due) {
            if (session_.waiter.now() >= bound)
                return session_.end(EndKind::noResponse, {noResponseText(waitFor_) + "."});
            hint_.onDue();
            continue;
        }
        const std::string input = session_.Input();
        if (input.empty() && session_.lost())
            return session_.end(EndKind::lineGone, {session_.line.problem()});
        if (input.empty())
            continue;
        if (const auto refusal = onCharacter(input[0])) {
            const SessionEnd why = recoverEnd(*refusal);
            return session_.end(why.kind, why.why);
        }
        if (input[0] == ctrlZ)
            return watchEnd();
    }
}

// Whether more comes is what tells a stray end mark from the last.
SessionResult<void> RecoverSession::watchEnd() {
    if (session_.pause(session_.waiter.now() + DownloadProgress::interval) == Wake::cancelled)
        return Session::cancelled();
    followed_ = session_.unused();
    return {};
}

std::optional<RecoverRefusal> RecoverSession::onCharacter(char c) {
    hint_.heard();
    if (text_.empty()) {
        session_.panel.progressVisible(true);
        // From here on nothing bounds the wait.
        if (waitFor_ != Waiter::never)
            hint_.start();
    }
    text_ += scan_.feed(c);
    if (text_.size() > maximumCharacters)
        throw fault::subscript();
    countProgress();
    const std::size_t offset = scan_.started() ? text_.size() - 1 - scan_.startIndex() : 0;
    return recoverRefusal(offset, c, session_.instrument.instSelection);
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

SessionResult<PendingDownload> RecoverSession::workOut(Files& files, const std::string& temporary) {
    const RecoverHeader header = recoverHeader(text_);
    files.write(temporary, quotedText(text_));
    const int readings = countReadings(files.read(temporary, text_.size() + 4));
    if (overwritten(header.mode, readings, session_.instrument.maxSamples)) {
        const SessionEnd why = recoverEnd(RecoverRefusal::notRecoverable);
        return session_.end(why.kind, why.why);
    }
    warnOfDamage(text_, session_.prompt);
    return accept(recoverText(text_, header, readings));
}

PendingDownload RecoverSession::accept(const RecoveredText& recovered) {
    session_.journal.accepted(recovered.text);
    const std::string report = informationReport(
        recovered.text, {.recovered = RecoveredFacts{screenTime(recovered.start),
                                                     screenTime(recovered.stopped), recovered.readings},
                         .memory = session_.instrument.maxSamples});
    session_.panel.prompt(report);
    session_.prompt.tell(" PROCEED");
    return {.text = recovered.text, .id = session_.journal.id()};
}

void RecoverSession::warnLowBattery() {
    if (scan_.lowBattery())
        session_.prompt.show({.text = lowBatteryText, .title = "WARNING", .exclamation = true});
}

} // namespace tally
