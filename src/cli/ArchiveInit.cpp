// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "platform/Folders.h"
#include "platform/archive/OpenArchive.h"

namespace tally::cli {

namespace {

struct Options {
    std::vector<std::string> partitions;
    std::shared_ptr<bool> json;
};

std::vector<archive::Place> partitionsOf(const Options& options, const archive::Place& place) {
    std::vector<archive::Place> partitions;
    for (const std::string& url : options.partitions) {
        partitions.push_back(archivePlace(url));
        if (place.engine != archive::Engine::postgresql ||
            partitions.back().engine != archive::Engine::postgresql)
            throw WrongUsage(
                "Only an archive on PostgreSQL can be split over servers, and only over PostgreSQL servers");
    }
    return partitions;
}

int init(Context& context, const Options& options) {
    const archive::Place place = archivePlace();
    const auto partitions = partitionsOf(options, place);
    context.needEventLoop();
    // The user's own data folder may not be there yet; a folder that was typed must be.
    if (place.text() == defaultPlace().text())
        folders::make(folders::data());
    const auto made = initArchive(place, partitions);
    if (!made)
        throw Refused(onLines(made.error()));
    if (*options.json)
        outJson(context, {{"archive", place.text()}});
    else
        context.out("The archive is at " + place.text() + "\n");
    return status::done;
}

} // namespace

void addArchiveInit(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(archive, shared, "init", "make an archive; nothing when there is one",
                                   [options](Context& context) { return init(context, *options); });
    command.add_option("--partition-on", options->partitions,
                       "PostgreSQL servers that the recordings are split over");
    options->json = addJson(command);
}

} // namespace tally::cli
