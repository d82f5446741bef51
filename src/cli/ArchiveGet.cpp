// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Verify.h"
#include "cli/ArchiveCommands.h"
#include "cli/ArchivePlace.h"
#include "cli/OpenFiles.h"
#include "core/NotesFile.h"

#include <filesystem>

namespace tally::cli {

namespace {

struct Options {
    std::string name;
    std::string output;
    std::shared_ptr<bool> json;
};

// Neither file is written unless both can be.
void checkPlaces(const Options& options, const archive::Given& given) {
    checkPlace(options.output, given.bytes.size());
    if (given.notesFile)
        checkPlace(notesPath(options.output), given.notesFile->size());
}

int get(Context& context, const Options& options) {
    const std::string notes = notesPath(options.output);
    if (notes == options.output)
        throw Refused(options.output + " is the name of a notes file; choose another");
    const auto store = openStore(context);
    const archive::Entry entry = entryNamed(*store, options.name);
    const auto given = archive::giveBack(*store, entry, archiveTools());
    if (!given)
        throw Refused(onLines(given.error()));
    checkPlaces(options, *given);
    writeFile(context, options.output, given->bytes);
    // Notes of another recording must not stay beside this one.
    std::error_code ignored;
    if (given->notesFile)
        writeFile(context, notes, *given->notesFile);
    else
        std::filesystem::remove(notes, ignored);
    if (*options.json)
        outJson(context, {{"id", entry.name()},
                          {"path", options.output},
                          {"notes", given->notesFile ? Json(notes) : Json(nullptr)}});
    return status::done;
}

} // namespace

void addArchiveGet(CLI::App& archive, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(archive, shared, "get", "give a recording back byte for byte, with its notes",
                   [options](Context& context) { return get(context, *options); });
    command.add_option("ID", options->name, "the first digits of the recording's name")->required();
    command.add_option("-o,--output", options->output, "the data file to write")->required();
    options->json = addJson(command);
}

} // namespace tally::cli
