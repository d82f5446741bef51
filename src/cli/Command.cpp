// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Command.h"

#include <cstdio>

namespace tally {

CLI::App* addCommand(CLI::App& program, Services& services, const std::string& name,
                     const std::string& description, std::function<int()> run) {
    CLI::App* command = program.add_subcommand(name, description);
    auto at = std::make_shared<std::string>();
    command->add_option("--at", *at, "the time to take for the clock's, \"mm-dd-yy hh:mm\"");
    command->callback([&services, at, run = std::move(run)] {
        services.setTime(*at);
        const int status = run();
        if (status != 0)
            throw CLI::RuntimeError(status);
    });
    return command;
}

void out(std::string_view bytes) {
    const bool whole =
        std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0;
    if (!whole)
        throw Refusal("The result could not be written to standard output.");
}

void warn(std::string_view line) {
    const std::string text = std::string(line) + "\n";
    std::fwrite(text.data(), 1, text.size(), stderr);
}

} // namespace tally
