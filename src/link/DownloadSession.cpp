// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/DownloadSession.h"

#include "core/Header.h"
#include "link/InformationReport.h"
#include "link/PromptTexts.h"
#include "link/ReceivedText.h"

#include <algorithm>

namespace tally {

namespace {

const char* const voltageCaution = "             CAUTION          \r"
                                   "                                 \r"
                                   "    For Voltage Recorders press  \r"
                                   "    the display switch until the \r"
                                   "          reading appears.       \r"
                                   "                                 \r"
                                   "           Then press OK         \r";

constexpr std::size_t countStep = 10000; // characters between two showings of the running count

// Puts dialog, status line and journal in order at the end of a download, however it ends.
class DownloadEnd {
public:
    explicit DownloadEnd(Session& session) : session_(session) {}
    ~DownloadEnd() {
        session_.closePort();
        if (!complete)
            session_.journal.end(JournalState::interrupted);
        session_.panel.progressVisible(false);
        session_.panel.remaining("");
        session_.panel.busy(false);
        session_.panel.mainStatus("");
    }
    DownloadEnd(const DownloadEnd&) = delete;
    DownloadEnd& operator=(const DownloadEnd&) = delete;

    bool complete = false; // the text came to its end

private:
    Session& session_;
};

// By how many minutes the clock of a running instrument is ahead of the computer's.
std::optional<std::int64_t> clockDifference(const Received& received) {
    const std::string header = headerOf(received.text);
    const auto clock = timeOf(header);
    if (!clock || !isRunning(header))
        return {};
    return clock->minutes - received.headerSeen.minutes;
}

std::string bothRatesSilent(const HeaderScan&) {
    return noResponseText(ResponseTimer::interval) +
           " at each of two different baud rates.\r\n"
           "\r\n"
           "Check that the instrument is connected.\r\n"
           "Otherwise remove the cable from the instrument, and then\r\n"
           "try selecting some other instrument type\r\n"
           "(using Options > Instrument Selection).";
}

std::string notValid(const HeaderScan&) {
    return "Response from instrument not valid.\r\n"
           "Remove the cable from the instrument, and then\r\n"
           "try selecting some other instrument type\r\n"
           "(using Options > Instrument Selection)";
}

} // namespace

WaitPolicy downloadPolicy(Panel& panel, std::int64_t waitFor) {
    WaitPolicy policy;
    policy.wholeText = true;
    policy.waitFor = waitFor;
    policy.silent = bothRatesSilent;
    policy.wrongToken = notValid;
    policy.onRecording = [&panel] { panel.prompt(receivingText); };
    return policy;
}

DownloadSession::DownloadSession(Session& session, std::int64_t waitFor)
    : session_(session), waitFor_(waitFor) {}

SessionResult<void> DownloadSession::prepare(const Files& files, const std::string& workingDirectory) {
    session_.waiter.resetCancel();
    if (auto there = session_.probe(); !there)
        return there;
    flags_ = HandleRunspec(files, session_.prompt, workingDirectory);
    if (isVoltageRecorder(session_.instrument.instSelection) &&
        session_.prompt.show({.text = voltageCaution, .buttons = Buttons::OkCancel}) == Answer::Cancel)
        return Session::cancelled();
    session_.panel.prompt(connectionPrompt(session_.instrument));
    return {};
}

SessionResult<PendingDownload> DownloadSession::DownLoadProc() {
    session_.journal.begin(journalHeader(session_, "download"));
    DownloadEnd end(session_);
    session_.panel.mainStatus(portInUseText(session_.instrument));
    auto received = receive();
    session_.gErrorCallPoint = 317;
    session_.closePort();
    if (!received)
        return tl::make_unexpected(received.error());
    end.complete = true;
    session_.journal.end(JournalState::received);
    showProcessing(received->text);
    session_.gErrorCallPoint = 0;
    return judge(*received);
}

SessionResult<Received> DownloadSession::receive() {
    Panel& panel = session_.panel;
    session_.gErrorCallPoint = 315;
    if (const auto opened = session_.open(); !opened)
        return tl::make_unexpected(opened.error());
    panel.progress(0);
    panel.progressText("        Ready to start download.");
    panel.prompt(waitingText(session_.instrument));
    session_.gErrorCallPoint = 316;
    return InstrumentWait(session_, downloadPolicy(panel, waitFor_)).run();
}

void DownloadSession::showProcessing(const std::string& text) {
    Panel& panel = session_.panel;
    panel.appendLog("Total No. of characters received = " + std::to_string(text.size()));
    panel.progressVisible(false);
    panel.remaining("");
    panel.status("PROCESSING DATA; WAIT");
    for (std::size_t count = 0; count < text.size();) {
        count = std::min(count + countStep, text.size());
        panel.progressText("No. of characters processed = " + std::to_string(count));
    }
}

SessionResult<PendingDownload> DownloadSession::judge(Received& received) {
    Prompt& prompt = session_.prompt;
    warnOfFollowers(received.followed, prompt);
    if (const auto checked = checkRecording(received.text, flags_, prompt); !checked) {
        session_.journal.end(JournalState::refused);
        return tl::make_unexpected(checked.error());
    }
    prompt.tell(removeCableText());
    const auto difference = clockDifference(received);
    if (const auto complete = completeHeader(received.text, prompt); !complete)
        return tl::make_unexpected(complete.error());
    const std::string report = informationReport(
        received.text, {.clockDifference = difference, .memory = session_.instrument.maxSamples});
    if (difference)
        session_.journal.clockDifference(*difference);
    session_.journal.accepted(received.text);
    session_.panel.prompt(report);
    prompt.tell(" PROCEED");
    if (received.lowBattery())
        prompt.show({.text = lowBatteryText, .title = "WARNING", .exclamation = true});
    return PendingDownload{received.text, session_.journal.id()};
}

} // namespace tally
