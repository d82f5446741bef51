// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/CopyArchive.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "core/Numbers.h"
#include "platform/archive/OpenArchive.h"

namespace tally::cli {

namespace {

struct Options {
    std::string target;
    std::shared_ptr<bool> json;
};

int backup(Context& context, const Options& options) {
    const auto store = openStore(context);
    store->backup(options.target);
    const std::int64_t recordings = store->stats().recordings;
    if (*options.json)
        outJson(context, {{"path", options.target}, {"recordings", recordings}});
    else
        context.out(counted(recordings, "recording") + " in " + options.target + "\n");
    return status::done;
}

int copy(Context& context, const Options& options) {
    const archive::Place place = archivePlace(options.target);
    const auto from = openStore(context);
    if (place.text() == archivePlace().text())
        throw Refused("An archive cannot be copied into itself");
    const auto made = initArchive(place);
    if (!made)
        throw Refused(onLines(made.error()));
    const auto to = openStore(context, place);
    const archive::CopyCount count = archive::copyArchive(*from, *to);
    if (*options.json)
        outJson(context, {{"added", count.added}, {"already", count.already}});
    else
        context.out(std::to_string(count.added) + " copied, " + std::to_string(count.already) +
                    " were there already\n");
    return status::done;
}

void addOne(CLI::App& archive, Context& shared, const char* name, const char* what, const char* target,
            const char* targetHelp, int (*run)(Context&, const Options&)) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(archive, shared, name, what,
                                   [options, run](Context& context) { return run(context, *options); });
    command.add_option(target, options->target, targetHelp)->required();
    options->json = addJson(command);
}

} // namespace

void addArchiveCopies(CLI::App& archive, Context& shared) {
    addOne(archive, shared, "backup", "write the whole archive into one SQLite file", "FILE",
           "a file that is not there yet", backup);
    addOne(archive, shared, "copy", "put every recording into another archive", "URL",
           "the other archive; it is made in an empty place", copy);
}

} // namespace tally::cli
