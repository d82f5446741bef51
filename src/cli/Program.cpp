// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Program.h"

#include "cli/Command.h"
#include "cli/HelpText.h"
#include "cli/TypedArguments.h"
#include "platform/StandardStreams.h"

namespace tally::cli {

namespace {

void warnUsage(Context& context, const CLI::App& program) {
    std::string line = "Usage: tallyline-cli ";
    const CLI::App* chosen = &program;
    for (auto named = program.get_subcommands(); !named.empty(); named = chosen->get_subcommands()) {
        chosen = named.front();
        line += (chosen->get_parent() == &program ? "" : " ") + chosen->get_name();
    }
    if (chosen == &program)
        line += "COMMAND [ARG...]";
    else
        for (const CLI::Option* option : chosen->get_options())
            if (option->get_positional())
                line += " " + positionalText(*option);
    context.warn(line + " [--option VALUE]; see tallyline-cli --help");
}

// Help and version are done on standard output; anything else wrong with the arguments is a usage error.
int parseFailure(const CLI::App& program, Context& context, const CLI::ParseError& error) {
    if (error.get_exit_code() == 0)
        return program.exit(error);
    context.warn(error.what());
    warnUsage(context, program);
    return status::usage;
}

int run(Context& context, const CLI::App& program) {
    const Ended ended = runAction(context);
    if (ended.reason.empty()) {
        if (context.flush())
            return ended.status;
        context.warn("Standard output cannot be written");
        return status::refused;
    }
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
