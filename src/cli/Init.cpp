// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/InstrumentLink.h"
#include "control/Initialize.h"
#include "control/KnownDownloads.h"
#include "control/ModeLetter.h"

namespace tally::cli {

namespace {

struct InitOptions {
    std::shared_ptr<LinkOptions> link;
    ModeChoice mode;
    std::string record;
    std::string full;
    std::shared_ptr<double> wait;
    bool yes = false;
    bool eraseUnsaved = false;
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
    InstrumentLink link(context, *options.link,
                        {.yesOrNo = options.eraseUnsaved ? Answer::Yes : Answer::No,
                         .okOrCancel = options.yes ? Answer::Ok : Answer::Cancel});
    context.warn(knownDownloads(link.journal.list()));
    TracePanel panel(context, options.link->log);
    Session session(link.services(), panel);
    if (const auto ready = prepareInitialize(session); !ready) {
        if (!options.yes)
            context.warn("Nothing was sent; --yes goes on");
        return status::refused;
    }
    InitializeSession initialization(link.services(), panel,
                                     {.waitFor = waitFor(*options.wait), .once = true});
    const auto settings = initialization.Initialize(modeLetter(options.mode));
    if (!settings) {
        if (settings.error().kind == EndKind::unsavedDownload)
            context.warn("No was taken: nothing was sent. Save the download (tallyline-cli journal save) or "
                         "drop it, or say --erase-unsaved.");
        return link.refused(settings.error());
    }
    context.out(asLines(settings->report));
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
    options->wait = addWait(command);
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
    command.add_flag("--erase-unsaved", options->eraseUnsaved,
                     "also while a download of this instrument is not saved");
}

} // namespace tally::cli
