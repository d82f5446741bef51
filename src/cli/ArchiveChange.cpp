// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"

namespace tally::cli {

namespace {

struct AssignOptions {
    std::string name;
    std::string station;
    std::string circuit;
    CLI::App* command = nullptr;
    std::shared_ptr<bool> json;
};

int assign(Context& context, const AssignOptions& options) {
    const bool station = options.command->count("--station") > 0;
    const bool circuit = options.command->count("--circuit") > 0;
    if (!station && !circuit)
        throw WrongUsage("Give --station, --circuit or both");
    const auto store = openStore(context);
    const archive::Entry before = entryNamed(*store, options.name);
    store->assign(before.id, station ? options.station : before.belonging.station,
                  circuit ? options.circuit : before.belonging.circuit);
    const archive::Entry after = entryNamed(*store, before.name());
    if (*options.json)
        outJson(context, jsonOf(after));
    else
        context.out(lineOf(after) + "\n");
    return status::done;
}

struct RemoveOptions {
    std::string name;
    bool yes = false;
    std::shared_ptr<bool> json;
};

int remove(Context& context, const RemoveOptions& options) {
    const auto store = openStore(context);
    const archive::Entry entry = entryNamed(*store, options.name);
    if (!options.yes)
        throw Refused(
            "Removing " + lineOf(entry) +
            "\nThe archive then no longer has this recording. Say --yes to do it; nothing was removed.");
    store->remove(entry.id);
    if (*options.json)
        outJson(context, {{"removed", entry.name()}});
    else
        context.out("Removed " + lineOf(entry) + "\n");
    return status::done;
}

} // namespace

void addArchiveChange(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<AssignOptions>();
    CLI::App& assigned = addCommand(archive, shared, "assign", "give a recording another station and circuit",
                                    [options](Context& context) { return assign(context, *options); });
    options->command = &assigned;
    assigned.add_option("ID", options->name, "the first digits of the recording's name")->required();
    assigned.add_option("--station", options->station, "its station");
    assigned.add_option("--circuit", options->circuit, "its circuit");
    options->json = addJson(assigned);

    auto other = std::make_shared<RemoveOptions>();
    CLI::App& removed = addCommand(archive, shared, "remove", "take a recording out of the archive",
                                   [other](Context& context) { return remove(context, *other); });
    removed.add_option("ID", other->name, "the first digits of the recording's name")->required();
    removed.add_flag("--yes", other->yes, "do it");
    other->json = addJson(removed);
}

} // namespace tally::cli
