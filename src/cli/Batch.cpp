// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/BatchRun.h"
#include "cli/Commands.h"
#include "cli/Endings.h"

#include <algorithm>
#include <map>
#include <thread>

namespace tally::cli {

namespace {

// What a command writes for a file, where it writes something.
struct Form {
    const char* command;
    std::vector<std::string> endings; // the first one without --format
    bool paints = false;
    bool ownName = false; // writes under a name of its own, without -o
};

const std::vector<Form>& forms() {
    static const std::vector<Form> all = {
        {"plot", {"png", "pdf", "svg"}, true},
        {"study", {"pdf", "xlsx"}, true},
        {"export csv", {"csv"}, false, true},
        {"export text", {"prn"}, false, true},
        {"export metering", {"prn"}, false, true},
        {"export table", {"csv", "xlsx"}},
        {"export opendss", {"dss"}},
        {"export gridlabd", {"player"}},
    };
    return all;
}

constexpr AddCommand commands[] = {addInfo, addCheck, addSummary, addTable, addPlot, addExport, addStudy};

struct Options {
    std::vector<std::string> paths;
    std::string folder;
    std::string format;
    int workers = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
};

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

Form formOf(const std::vector<std::string>& words) {
    const std::string command = joined(words);
    for (const Form& form : forms())
        if (command == form.command)
            return form;
    return {"", {}};
}

// The options that were given, as arguments again.
std::vector<std::string> argumentsOf(const CLI::App& command, const std::vector<const CLI::Option*>& own) {
    std::vector<std::string> arguments;
    for (const CLI::Option* option : command.get_options()) {
        if (option->count() == 0 || std::find(own.begin(), own.end(), option) != own.end())
            continue;
        for (const std::string& value : option->results()) {
            if (option->get_items_expected_max() == 0 && value == "true")
                arguments.push_back(option->get_name());
            else if (value.empty())
                arguments.insert(arguments.end(), {option->get_name(), value});
            else
                arguments.push_back(option->get_name() + "=" + value);
        }
    }
    return arguments;
}

bool isGiven(const CLI::App& command, const std::string& option) {
    const CLI::Option* found = command.get_option_no_throw(option);
    return found != nullptr && found->count() > 0;
}

// Takes away what stands for the one file and its result; whether there was such a result.
bool removeSingle(CLI::App& command) {
    bool writes = false;
    for (CLI::Option* option : command.get_options()) {
        const std::string name = option->get_name();
        writes = writes || name == "--output";
        if (option->get_positional() || name == "--output" || name == "--dir")
            command.remove_option(option);
    }
    return writes;
}

// What each command does over many files.
using Actions = std::map<const CLI::App*, Action>;

// Makes a command of one file one of many.
void overMany(CLI::App& command, Actions& actions, AddCommand add, const std::vector<std::string>& words) {
    const bool writes = removeSingle(command);
    const Form form = formOf(words);
    auto options = std::make_shared<Options>();
    std::vector<const CLI::Option*> own;
    own.push_back(command
                      .add_option("PATH", options->paths,
                                  "files, folders (their *.dat), or - for names on standard input")
                      ->required());
    own.push_back(
        command
            .add_option("-j,--jobs", options->workers, "how many work at once (else one for each processor)")
            ->check(CLI::Range(1, 10000)));
    if (writes || form.ownName) {
        own.push_back(
            command
                .add_option("-o,--output", options->folder, "the folder for the results; made when missing")
                ->check(whyEmpty));
        // Without a folder every export would have the same name.
        if (words.front() == "export")
            command.get_option("--output")->required();
    }
    if (form.endings.size() > 1)
        own.push_back(command.add_option("--format", options->format, "what is written")
                          ->check(CLI::IsMember(form.endings)));
    actions[&command] = [&command, add, words, form, options, own](Context& running) {
        BatchRun run{{add, words, argumentsOf(command, own), isGiven(command, "--json"),
                      !options->folder.empty() && !form.ownName, form.ownName},
                     options->paths,
                     options->folder,
                     options->format,
                     options->workers,
                     form.paints};
        if (run.ending.empty() && !form.endings.empty())
            run.ending = form.endings.front();
        return runBatch(running, run);
    };
}

// The same for all commands of a group.
void overManyEach(CLI::App& command, Actions& actions, AddCommand add, std::vector<std::string> words) {
    words.push_back(command.get_name());
    const auto below = command.get_subcommands([](const CLI::App*) { return true; });
    if (below.empty())
        overMany(command, actions, add, words);
    for (CLI::App* one : below)
        overManyEach(*one, actions, add, words);
}

} // namespace

void addBatch(CLI::App& program, Context& context) {
    CLI::App* batch = program.add_subcommand("batch", "run a command over many files");
    batch->require_subcommand(1);
    auto actions = std::make_shared<Actions>();
    for (const AddCommand add : commands) {
        add(*batch, context);
        overManyEach(*batch->get_subcommands([](const CLI::App*) { return true; }).back(), *actions, add, {});
    }
    // Runs after the callback of the command itself, which sets what it does with one file.
    batch->callback([actions, &context] {
        for (const auto& [command, action] : *actions)
            if (command->parsed())
                context.action = action;
    });
}

} // namespace tally::cli
