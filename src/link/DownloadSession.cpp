// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/DownloadSession.h"

#include "core/Fault.h"
#include "core/Header.h"
#include "link/FieldDate.h"
#include "link/InformationReport.h"
#include "link/PromptTexts.h"
#include "link/ReceivedText.h"
#include "link/ValidationReport.h"

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
std::optional<std::int64_t> clockDifference(const ReceivedDownload& received) {
    const std::string header = headerOf(received.text);
    const auto clock = timeOf(header);
    if (!clock || !isRunning(header))
        return {};
    return clock->minutes - received.headerSeen.minutes;
}

} // namespace

DownloadSession::DownloadSession(Session& session, std::int64_t waitFor)
    : session_(session), waitFor_(waitFor) {}

bool DownloadSession::mnuItemDownload_Click(const Files& files, const std::string& workingDirectory) {
    session_.waiter.resetCancel();
    try {
        probePort(session_.line, session_.instrument.gCommPort);
    } catch (const Fault&) {
        session_.prompt.tell(badPortText);
        return false;
    }
    flags_ = HandleRunspec(files, session_.prompt, workingDirectory);
    if (isVoltageRecorder(session_.instrument.instSelection) &&
        session_.prompt.show({.text = voltageCaution, .buttons = Buttons::OkCancel}) == Answer::Cancel)
        return false;
    session_.panel.prompt(connectionPrompt(session_.instrument));
    return true;
}

std::optional<PendingDownload> DownloadSession::DownLoadProc() {
    Panel& panel = session_.panel;
    const InstrumentState& instrument = session_.instrument;
    session_.journal.begin({.commPort = instrument.gCommPort,
                            .instrumentType = instrument.instSelection,
                            .settings = instrument.portSettings,
                            .pcTime = session_.waiter.localTime()});
    DownloadEnd end(session_);
    panel.mainStatus(portInUseText(instrument.gCommPort));

    std::optional<ReceivedDownload> received;
    session_.gErrorCallPoint = 315;
    try {
        session_.openPort();
        panel.progress(0);
        panel.progressText("        Ready to start download.");
        session_.gErrorCallPoint = 316;
        received = DownloadReception(session_, waitFor_).run();
    } catch (const Fault&) {
        session_.prompt.tell(badPortText);
    }
    session_.gErrorCallPoint = 317;
    session_.closePort();
    if (!received)
        return {};
    end.complete = true;
    session_.journal.end(JournalState::received);
    showProcessing(received->text);
    session_.gErrorCallPoint = 0;
    return judge(*received);
}

void DownloadSession::showProcessing(const std::string& text) {
    Panel& panel = session_.panel;
    panel.appendLog("Total No. of characters received = " + std::to_string(text.size()));
    panel.progressVisible(false);
    panel.status("PROCESSING DATA; WAIT");
    for (std::size_t count = 0; count < text.size();) {
        count = std::min(count + countStep, text.size());
        panel.progressText("No. of characters processed = " + std::to_string(count));
    }
}

std::optional<PendingDownload> DownloadSession::judge(ReceivedDownload& received) {
    Prompt& prompt = session_.prompt;
    if (!upperCaseModel(received.text)) {
        prompt.tell("Bad data. Try downloading again.");
        session_.journal.end(JournalState::refused);
        return {};
    }
    if (!judgeDownload(received.text, flags_, prompt)) {
        session_.journal.end(JournalState::refused);
        return {};
    }
    prompt.tell(removeCableText());
    const auto difference = clockDifference(received);
    if (!completeHeaderTime(received.text, prompt))
        return {};
    const std::string report = informationReport(received.text, {}, difference);
    if (difference)
        session_.journal.clockDifference(*difference);
    session_.journal.accepted(received.text);
    session_.panel.prompt(report);
    prompt.tell(" PROCEED");
    if (received.lowBattery)
        prompt.show({.text = lowBatteryText, .title = "WARNING", .exclamation = true});
    return PendingDownload{received.text, session_.journal.id()};
}

} // namespace tally
