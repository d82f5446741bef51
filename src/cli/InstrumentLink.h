// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "core/Prompt.h"
#include "link/InstrumentState.h"
#include "link/ReceivedRecording.h"
#include "link/Session.h"
#include "platform/JournalFolder.h"
#include "platform/QtWaiter.h"
#include "platform/QtWaiterInterrupt.h"
#include "platform/SerialLine.h"
#include "platform/SimulatedInstrument.h"

#include <memory>
#include <optional>
#include <string>

namespace tally::cli {

// The options --port and --type of a command on an instrument, as they were typed.
struct LinkOptions {
    std::string port;
    std::string type;
    bool log = false; // the debugging log on standard error
};

std::shared_ptr<LinkOptions> addLink(CLI::App& command);

// Adds --wait; gives milliseconds, Waiter::never without it.
std::shared_ptr<double> addWait(CLI::App& command);
std::int64_t waitFor(double seconds);

// What a call answers in advance.
struct LinkAnswers {
    Answer yesOrNo = Answer::No;
    Answer okOrCancel = Answer::Ok;
    std::string initialized = {}; // date of the field initialization
    std::string mode = {};        // mode letter for a header whose own cannot be read
};

// Tells everything on standard error and answers as the call says; date and mode letter are given once.
class LinkPrompt : public Prompt {
public:
    LinkPrompt(Context& context, LinkAnswers answers) : context_(context), answers_(std::move(answers)) {}
    Answer show(const Message& message) override;
    std::optional<std::string> input(const InputQuestion& question) override;
    std::optional<std::string> chooseFile(const FileQuestion& question) override;

private:
    Context& context_;
    LinkAnswers answers_;
};

// Adds --initialized and --mode, which a damaged header needs. Throws WrongUsage when they are asked for and
// make no sense.
struct HeaderOptions {
    std::string initialized;
    std::string mode;
    LinkAnswers answers(Answer yesOrNo) const;
};
std::shared_ptr<HeaderOptions> addHeaderOptions(CLI::App& command);

// Shows on standard error what the dialog of a session would show; a text that stays is shown once.
class LinkPanel : public Panel {
public:
    LinkPanel(Context& context, bool log) : context_(context), log_(log) {}
    // Leaves the instruction label out, for a command whose result stands there.
    void hidePrompts() { prompts_ = false; }
    void prompt(const std::string& text) override;
    void status(const std::string& text) override { show(status_, text); }
    void progressText(const std::string& text) override { show(progress_, text); }
    void appendLog(const std::string& text) override;
    void progressVisible(bool) override {}
    void progress(int) override {}
    void hint(const std::string& text) override { show(hint_, text); }
    void busy(bool) override {}
    void mainStatus(const std::string& text) override { show(mainStatus_, text); }

private:
    void show(std::string& last, const std::string& text);

    Context& context_;
    bool log_;
    bool prompts_ = true;
    std::string prompt_;
    std::string status_;
    std::string progress_;
    std::string hint_;
    std::string mainStatus_;
};

// The machine's waiter with the wall clock of the call, which --at may have set.
class LinkWaiter : public Waiter {
public:
    LinkWaiter(SerialLine& line, const Clock& wall) : waiter_(line), wall_(wall), interrupt_(waiter_) {}
    ReadingTime localTime() const override { return wall_.localTime(); }
    std::int64_t now() const override { return waiter_.now(); }
    Wake until(std::int64_t deadline) override { return waiter_.until(deadline); }
    bool cancelRequested() const override { return waiter_.cancelRequested(); }
    // Ctrl+C before the session counts too.
    void resetCancel() override {}

private:
    QtWaiter waiter_;
    const Clock& wall_;
    QtWaiterInterrupt interrupt_;
};

// Everything that a session with an instrument works on, for one call. Throws WrongUsage for an unknown type
// or port.
class InstrumentLink {
public:
    InstrumentLink(Context& context, const LinkOptions& options, LinkAnswers answers = {});
    // Says when something was received that no file holds.
    ~InstrumentLink();
    InstrumentLink(const InstrumentLink&) = delete;
    InstrumentLink& operator=(const InstrumentLink&) = delete;

    SessionServices services() { return {line, waiter, prompt, instrument, journal, gErrorCallPoint}; }
    // The exit status of a session that ended without a result, after saying what was not told yet.
    int refused(const SessionEnd& end);
    // The end of a call that receives a recording: writes the file and notes in the journal that it is saved,
    // or says why there is none. Gives the exit status; throws Refused when the file cannot be written.
    int keep(const SessionResult<PendingDownload>& received, const std::string& path);

    SimulatedInstrument simulated;
    SerialLine line;
    LinkWaiter waiter;
    LinkPrompt prompt;
    LinkPanel panel;
    InstrumentState instrument;
    JournalFolder journal;
    int gErrorCallPoint = 0;

private:
    // What is behind a COM port, or the device of the call; starts the simulated instrument.
    std::string device(int commPort, const std::string& given);

    Context& context_;
};

// Refuses, before an instrument is asked for anything, a place where the largest recording could not be
// written.
void checkOutput(const std::string& path);

// Writes an accepted recording and notes in the journal that it is saved.
void saveRecording(Context& context, Journal& journal, const PendingDownload& recording,
                   const std::string& path);

} // namespace tally::cli
