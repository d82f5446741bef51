// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Json.h"
#include "cli/OpenFiles.h"
#include "core/Fault.h"
#include "core/NotesFile.h"

#include <array>

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::string> file;
    std::array<std::string, 4> texts;
    std::array<CLI::Option*, 4> given{};
    std::shared_ptr<bool> json;
};

constexpr std::array<const char*, 4> labels = {"Location", "Circuit", "Name", "Other"};
constexpr std::array<const char*, 4> keys = {"location", "circuit", "name", "other"};
constexpr std::array<const char*, 4> names = {"--location", "--circuit", "--name", "--other"};

void save(Context& context, Recordings& recordings, const Notes& notes) {
    try {
        saveNotes(recordings, context.files(), 0, notes);
    } catch (const Fault& fault) {
        throw Refused(std::string(fault.what()) + "\n" + notesPath(recordings.info(0).path) +
                      " was not written.\n" + faultAdvice(fault));
    }
}

int run(Context& context, const Options& options) {
    OpenFiles open = openFiles(context, {*options.file});
    auto notes = open.recordings.gNotes[0];
    bool set = false;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        if (options.given[i]->count() == 0)
            continue;
        notes[i] = options.texts[i];
        set = true;
    }
    if (set) {
        save(context, open.recordings, notes);
        return 0;
    }
    Json document;
    std::string text;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        document[keys[i]] = notes[i];
        text += std::string(labels[i]) + ": " + notes[i] + "\n";
    }
    if (*options.json)
        outJson(context, document);
    else
        context.out(text);
    return 0;
}

} // namespace

void addNotes(CLI::App& program, Context& shared) {
    auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(program, shared, "notes", "print the four notes of a data file, or set some",
                   [options](Context& context) { return run(context, *options); });
    options->file = addFile(command);
    options->json = addJson(command);
    for (std::size_t i = 0; i < names.size(); ++i)
        options->given[i] =
            command.add_option(names[i], options->texts[i], std::string("the new text of ") + labels[i]);
}

} // namespace tally::cli
