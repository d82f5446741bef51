// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Program.h"

#include "cli/Command.h"
#include "cli/HelpText.h"
#include "cli/TypedArguments.h"
#include "platform/StandardStreams.h"

#include <iostream>

namespace tally::cli {

namespace {

// The program and the commands below it that were named, the innermost last.
std::vector<const CLI::App*> chosenOf(const CLI::App& program) {
    std::vector<const CLI::App*> chosen = {&program};
    for (auto named = program.get_subcommands(); !named.empty(); named = chosen.back()->get_subcommands())
        chosen.push_back(named.front());
    return chosen;
}

void warnUsage(Context& context, const CLI::App& program) {
    std::string line = "Usage: tallyline-cli";
    const auto chosen = chosenOf(program);
    for (std::size_t i = 1; i < chosen.size(); ++i)
        line += " " + chosen[i]->get_name();
    if (chosen.size() == 1)
        line += " COMMAND [ARG...]";
    else
        for (const CLI::Option* option : chosen.back()->get_options())
            if (option->get_positional())
                line += " " + positionalText(*option);
    context.warn(line + " [--option VALUE]; see tallyline-cli --help");
}

int cannotWrite(Context& context) {
    context.warn("Standard output cannot be written");
    return status::refused;
}

// The words that no command takes, in the order in which they were typed; empty when all were taken.
std::string leftOver(const CLI::App& program) {
    std::string words;
    for (const std::string& word : program.remaining(true))
        words += (words.empty() ? "'" : ", '") + asTyped(word) + "'";
    return words;
}

std::string wrongArguments(const CLI::App& program, const CLI::ParseError& error) {
    const std::string words = leftOver(program);
    const CLI::App& chosen = *chosenOf(program).back();
    const bool namesCommands = !chosen.get_subcommands([](const CLI::App*) { return true; }).empty();
    // A word in the place of a command's name is named rather than the name asked for.
    if (namesCommands && !words.empty() && !words.starts_with("'-"))
        return "There is no such command of " + chosen.get_name() + ": " + words;
    return dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr ? "Not expected: " + words : error.what();
}

// Help and version are done on standard output; anything else wrong with the arguments is a usage error.
int parseFailure(const CLI::App& program, Context& context, const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
        const int done = program.exit(error);
        return std::cout.flush() ? done : cannotWrite(context);
    }
    context.warn(wrongArguments(program, error));
    warnUsage(context, program);
    return status::usage;
}

int run(Context& context, const CLI::App& program) {
    const Ended ended = runAction(context);
    if (ended.reason.empty())
        return context.flush() ? ended.status : cannotWrite(context);
    context.warn(ended.reason);
    if (ended.status == status::usage)
        warnUsage(context, program);
    return ended.status;
}

} // namespace

int runProgram(int argc, char** argv) {
    holdStandardStreams();
    Context context(argc, argv);
    CLI::App program("Recordings of portable load recorders, and the instruments, without a window",
                     "tallyline-cli");
    program.set_version_flag("--version", std::string("tallyline-cli ") + TALLY_VERSION);
    program.require_subcommand(0, 1);
    program.formatter(std::make_shared<HelpText>()); // before the commands, which take it over
    for (const AddCommand add : allCommands())
        add(program, context);
    takePlainWords(program);
    try {
        program.parse(typedArguments(argc, argv));
    } catch (const CLI::ParseError& error) {
        return parseFailure(program, context, error);
    }
    // Asked for here, so that a word that is no command is named as such.
    if (!context.action) {
        context.warn("Name a command");
        warnUsage(context, program);
        return status::usage;
    }
    return run(context, program);
}

} // namespace tally::cli
