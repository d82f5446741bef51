// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OpenFiles.h"
#include "core/NotesFile.h"

#include <array>

namespace tally::cli {

namespace {

struct Options {
    std::shared_ptr<std::string> file;
    std::array<std::string, 4> texts;
    std::array<CLI::Option*, 4> given{};
};

constexpr std::array<const char*, 4> labels = {"Location", "Circuit", "Name", "Other"};
constexpr std::array<const char*, 4> names = {"--location", "--circuit", "--name", "--other"};

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
        saveNotes(open.recordings, context.files(), 0, notes);
        return 0;
    }
    std::string text;
    for (std::size_t i = 0; i < notes.size(); ++i)
        text += std::string(labels[i]) + ": " + notes[i] + "\n";
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
    for (std::size_t i = 0; i < names.size(); ++i)
        options->given[i] =
            command.add_option(names[i], options->texts[i], std::string("the new text of ") + labels[i]);
}

} // namespace tally::cli
