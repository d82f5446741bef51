// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Command.h"

namespace tally::cli {

CLI::App& addCommand(CLI::App& program, Context& context, const std::string& name,
                     const std::string& description, Action action) {
    CLI::App* command = program.add_subcommand(name, description);
    command->callback([&context, action = std::move(action)] { context.action = action; });
    return *command;
}

} // namespace tally::cli
