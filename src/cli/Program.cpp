// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Program.h"

#include "cli/Command.h"
#include "core/Fault.h"

namespace tally {

namespace {

constexpr int refused = 1;
constexpr int wrongUsage = 2;

void addCommands(CLI::App& program, Services& services) {
    addInfo(program, services);
    addReadings(program, services);
    addSave(program, services);
    addTable(program, services);
    addSummary(program, services);
    addPower(program, services);
    addPlot(program, services);
    addNotes(program, services);
    addForce(program, services);
}

// The usage line of the command that was named, else of the program.
std::string usageLine(const CLI::App& program) {
    const auto named = program.get_subcommands();
    const CLI::App& app = named.empty() ? program : *named.front();
    const std::string name = named.empty() ? "" : " " + app.get_name();
    std::string line = "Usage: tallyline-cli" + (named.empty() ? " COMMAND [ARG...] [OPTION...]" : name);
    if (!named.empty()) {
        for (const CLI::Option* option : app.get_options())
            if (option->get_positional())
                line += " " + option->get_name(true, false);
        line += " [OPTION...]";
    }
    return line + "\n'tallyline-cli" + name + " --help' tells more.";
}

int usageError(const CLI::App& program, const std::string& text) {
    warn(text);
    warn(usageLine(program));
    return wrongUsage;
}

} // namespace

int runProgram(int argc, char** argv) {
    CLI::App program("Tallyline on the command line: recordings and instruments without the window",
                     "tallyline-cli");
    program.set_version_flag("--version", "tallyline-cli " TALLY_VERSION);
    program.require_subcommand(1);
    Services services;
    addCommands(program, services);
    try {
        program.parse(argc, argv);
        return 0;
    } catch (const CLI::RuntimeError& status) {
        return status.get_exit_code();
    } catch (const CLI::Success& help) {
        return program.exit(help);
    } catch (const CLI::ParseError& error) {
        return usageError(program, error.what());
    } catch (const WrongUsage& error) {
        return usageError(program, error.what());
    } catch (const Refusal& refusal) {
        warn(refusal.what());
    } catch (const Fault& fault) {
        warn(fault.what());
    }
    return refused;
}

} // namespace tally
