// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Command.h"

#include "cli/Endings.h"
#include "core/Fault.h"

#include <exception>
#include <memory>

namespace tally::cli {

std::string onLines(const Refusal& refusal) {
    std::string lines = refusal.text;
    for (const std::string& line : {refusal.subject, refusal.advice})
        if (!line.empty())
            lines += "\n" + line;
    return lines;
}

Ended runAction(Context& context) {
    try {
        return {context.action(context)};
    } catch (const WrongForFile& wrong) {
        return {status::usage, wrong.what(), true};
    } catch (const WrongUsage& wrong) {
        return {status::usage, wrong.what()};
    } catch (const Refused& refused) {
        return {status::refused, refused.what()};
    } catch (const Fault& fault) {
        return {status::refused,
                onLines({fault.what(), fault.subject(), fault.subject().empty() ? "" : faultAdvice(fault)})};
    } catch (const std::exception& error) {
        // Nothing that goes wrong in a command may end the program without a word.
        return {status::refused, error.what()};
    }
}

CLI::App& addCommand(CLI::App& program, Context& context, const std::string& name,
                     const std::string& description, Action action) {
    CLI::App* command = program.add_subcommand(name, description);
    auto at = std::make_shared<std::string>();
    command->add_option("--at", *at, "the time to take for the clock's, \"mm-dd-yy hh:mm\"")->check(whyEmpty);
    command->callback([&context, at, action = std::move(action)] {
        if (!at->empty() && !context.setTime(*at))
            throw CLI::ValidationError("--at", "'" + *at + "' is no time; write it as \"mm-dd-yy hh:mm\"");
        context.action = action;
    });
    return *command;
}

} // namespace tally::cli
