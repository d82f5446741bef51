// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/InstrumentLink.h"
#include "control/Initialize.h"
#include "control/KnownDownloads.h"
#include "control/ModeLetter.h"
#include "control/ReadBack.h"

namespace tally::cli {

namespace {

struct InitOptions {
    std::shared_ptr<LinkOptions> link;
    ModeChoice mode;
    std::string record;
    std::string full;
    bool yes = false;
};

// One instrument a call: a cancelled session is not begun again. Keeps the report of the read-back.
class InitPrompt : public LinkPrompt {
public:
    InitPrompt(Context& context, const Waiter& waiter, bool erase)
        : LinkPrompt(context, Answer::No), waiter_(waiter), erase_(erase) {}

    Answer show(const Message& message) override {
        if (message.buttons == Buttons::YesNo) {
            report_ = message.text.substr(0, message.text.rfind(anotherQuestion));
            return Answer::No;
        }
        if (message.buttons == Buttons::OkCancel && waiter_.cancelRequested())
            return Answer::Cancel;
        LinkPrompt::show(message);
        return erase_ ? Answer::Ok : Answer::Cancel;
    }
    const std::string& report() const { return report_; }

private:
    const Waiter& waiter_;
    bool erase_;
    std::string report_;
};

// Shows of a label that grows what is new.
class TracePanel : public LinkPanel {
public:
    TracePanel(Context& context, bool log) : LinkPanel(context, log) {}
    void status(const std::string& text) override {
        const bool grown = !last_.empty() && text.starts_with(last_);
        std::string news = grown ? text.substr(last_.size()) : text;
        last_ = text;
        LinkPanel::status(news.erase(0, news.find_first_not_of("\r\n")));
    }

private:
    std::string last_;
};

// The report with the line ends of a terminal.
std::string asLines(const std::string& text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != '\r')
            lines += text[i];
        else if (i + 1 == text.size() || text[i + 1] != '\n')
            lines += '\n';
    return lines;
}

int initialize(Context& context, const InitOptions& options) {
    InstrumentLink link(context, *options.link);
    InitPrompt prompt(context, link.waiter, options.yes);
    context.warn(knownDownloads(link.journal.list()));
    if (!mnuItemInitialize_Click(link.line, link.instrument, prompt)) {
        if (!options.yes)
            context.warn("Nothing was sent; --yes goes on");
        return link.refused();
    }
    TracePanel panel(context, options.link->log);
    InitializeSession session(link.line, link.waiter, prompt, panel, link.instrument, link.gErrorCallPoint);
    if (session.Initialize(modeLetter(options.mode)) == 0)
        return link.refused();
    context.out(asLines(prompt.report()));
    return status::done;
}

} // namespace

void addInit(CLI::App& program, Context& shared) {
    auto options = std::make_shared<InitOptions>();
    CLI::App& command = addCommand(program, shared, "init",
                                   "erase an instrument and set its clock and mode for a new recording",
                                   [options](Context& context) {
                                       options->mode.minMaxAvg = options->record == "mma";
                                       options->mode.stopWhenFull = options->full == "stop";
                                       return initialize(context, *options);
                                   });
    options->link = addLink(command);
    command.add_option("--interval", options->mode.minutes, "minutes per interval: 15, 5 or 1")
        ->required()
        ->check(CLI::IsMember({15, 5, 1}));
    command
        .add_option("--record", options->record, "what is recorded per interval: avg or mma (Min/Max/Avg)")
        ->required()
        ->check(CLI::IsMember({"avg", "mma"}));
    command.add_option("--full", options->full, "when the memory is full: loop or stop")
        ->required()
        ->check(CLI::IsMember({"loop", "stop"}));
    command.add_flag("--yes", options->yes, "erase what the instrument holds");
}

} // namespace tally::cli
