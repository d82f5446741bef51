// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "core/Prompt.h"
#include "link/DownloadSession.h"
#include "link/InstrumentState.h"
#include "link/Session.h"
#include "platform/JournalFolder.h"
#include "platform/QtWaiter.h"
#include "platform/QtWaiterInterrupt.h"
#include "platform/SerialLine.h"
#include "platform/SimulatedInstrument.h"

#include <memory>
#include <optional>
#include <set>
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

// Tells everything on standard error. OK is taken as pressed, a question of yes or no is answered as the call
// says; the date of the field initialization is given once, when the call has it.
class LinkPrompt : public Prompt {
public:
    LinkPrompt(Context& context, Answer yesOrNo) : context_(context), yesOrNo_(yesOrNo) {}
    Answer show(const Message& message) override;
    std::optional<std::string> input(const InputQuestion& question) override;
    std::optional<std::string> chooseFile(const FileQuestion& question) override;
    void setInitialized(const std::string& date) { initialized_ = date; }
    // Whether this text was shown.
    bool told(const std::string& text) const { return told_.contains(text); }

private:
    Context& context_;
    std::set<std::string> told_;
    std::string initialized_;
    Answer yesOrNo_;
};

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
    InstrumentLink(Context& context, const LinkOptions& options, Answer yesOrNo = Answer::No);
    // Says when something was received that no file holds.
    ~InstrumentLink();
    InstrumentLink(const InstrumentLink&) = delete;
    InstrumentLink& operator=(const InstrumentLink&) = delete;

    // The exit status of a refused call, after saying what the line or Ctrl+C had to do with it.
    int refused();
    // The end of a call that receives a recording: writes the file and notes in the journal that it is saved,
    // or says why there is none. Gives the exit status; throws Refused when the file cannot be written.
    int keep(const std::optional<PendingDownload>& received, const std::string& path);

    SimulatedInstrument simulated;
    SerialLine line;
    LinkWaiter waiter;
    LinkPrompt prompt;
    LinkPanel panel;
    InstrumentState instrument;
    JournalFolder journal;
    int gErrorCallPoint = 0;
    Session session;

private:
    // What is behind a COM port, or the device of the call; starts the simulated instrument.
    std::string device(int commPort, const std::string& given);

    Context& context_;
};

} // namespace tally::cli
