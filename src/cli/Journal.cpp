// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/InstrumentLink.h"
#include "cli/Json.h"
#include "control/Rescue.h"
#include "core/Fault.h"
#include "core/Text1252.h"
#include "link/Instruments.h"
#include "link/PromptTexts.h"
#include "link/Rescue.h"
#include "platform/Folders.h"

namespace tally::cli {

namespace {

std::string typeText(int code) {
    const std::string name = InstrumentName(code);
    return name.empty() ? std::string(optionCaption(code)) : name;
}

Json asJson(const JournalEntry& entry) {
    const JournalHeader& header = entry.header;
    Json document = {{"id", entry.id}, {"time", screenTime(header.pcTime)}};
    document["port"] = header.commPort == 0 ? Json(header.device) : Json(header.commPort);
    document["type"] = header.instrumentType;
    document["typeName"] = typeText(header.instrumentType);
    document["command"] = header.command;
    document["state"] = std::string(stateName(entry.state));
    document["characters"] = entry.bytes;
    document["serial"] = toUtf8(entry.serial);
    return document;
}

std::string asLine(const JournalEntry& entry) {
    const JournalHeader& header = entry.header;
    return entry.id + "  " + screenTime(header.pcTime) + "  " + portName(header.commPort, header.device) +
           "  " + typeText(header.instrumentType) + "  " + header.command + "  " +
           std::string(stateName(entry.state)) + "  " + std::to_string(entry.bytes) + " characters  " +
           (entry.serial.empty() ? "no serial number" : "Ser. " + toUtf8(entry.serial)) + "\n";
}

// The journal of this user, as the window and the other commands keep it.
struct OpenJournal {
    explicit OpenJournal(Context& context)
        : journal((context.needEventLoop(), folders::data() + "/journal"), context.files()) {}

    JournalEntry entry(const std::string& id) const {
        for (JournalEntry& found : journal.list())
            if (found.id == id)
                return found;
        throw Refused("There is no reception " + id +
                      " in the journal. tallyline-cli journal list names them.");
    }
    // One that no session writes to any more.
    JournalEntry ended(const std::string& id) const {
        JournalEntry found = entry(id);
        if (found.state == JournalState::receiving)
            throw Refused("The reception " + id + " is still being received.");
        return found;
    }

    JournalFolder journal;
};

int list(Context& context, bool json) {
    const OpenJournal open(context);
    Json all = Json::array();
    for (const JournalEntry& entry : open.journal.list()) {
        if (json)
            all.push_back(asJson(entry));
        else
            context.out(asLine(entry));
    }
    if (json)
        outJson(context, all);
    return status::done;
}

int show(Context& context, const std::string& id) {
    const OpenJournal open(context);
    context.out(open.journal.received(open.entry(id).id));
    return status::done;
}

struct SaveOptions {
    std::string id;
    std::string output;
    std::shared_ptr<HeaderOptions> header;
    bool yes = false;
};

int save(Context& context, const SaveOptions& options) {
    LinkPrompt prompt(context, options.header->answers(options.yes ? Answer::Yes : Answer::No));
    OpenJournal open(context);
    const JournalEntry entry = open.ended(options.id);
    const auto judged = rescue(open.journal, entry, prompt);
    if (!judged && !options.yes) {
        if (judged.error().kind == EndKind::declined)
            context.warn(judged.error().why.message());
        context.warn("--yes saves it as it is");
        return status::refused;
    }
    saveRecording(context, open.journal,
                  judged ? *judged : PendingDownload{open.journal.text(entry.id), entry.id}, options.output);
    return status::done;
}

int drop(Context& context, const std::string& id) {
    OpenJournal open(context);
    open.journal.mark(open.ended(id).id, JournalState::dropped);
    return status::done;
}

void addId(CLI::App& command, std::string& id) {
    command.add_option("ID", id, "a reception, as journal list names it")->required();
}

void addSaving(CLI::App& journal, Context& shared) {
    auto options = std::make_shared<SaveOptions>();
    CLI::App& command =
        addCommand(journal, shared, "save", "judge a reception as its command does, and write its data file",
                   [options](Context& context) { return save(context, *options); });
    addId(command, options->id);
    command.add_option("-o,--output", options->output, "the data file to write")->check(whyEmpty)->required();
    options->header = addHeaderOptions(command);
    command.add_flag("--yes", options->yes, "save also what was found bad");
}

} // namespace

void addJournal(CLI::App& program, Context& shared) {
    CLI::App* journal = program.add_subcommand("journal", "what was received, also where no file holds it");
    journal->require_subcommand(1);
    auto json = std::make_shared<std::shared_ptr<bool>>();
    CLI::App& listing = addCommand(*journal, shared, "list", "the receptions that are kept, newest first",
                                   [json](Context& context) { return list(context, **json); });
    *json = addJson(listing);
    auto shown = std::make_shared<std::string>();
    addId(addCommand(*journal, shared, "show", "the characters of a reception as they came",
                     [shown](Context& context) { return show(context, *shown); }),
          *shown);
    addSaving(*journal, shared);
    auto dropped = std::make_shared<std::string>();
    addId(addCommand(*journal, shared, "drop", "give a reception up",
                     [dropped](Context& context) { return drop(context, *dropped); }),
          *dropped);
}

} // namespace tally::cli
