// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Context.h"
#include "core/Refusal.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tally::cli {

// What a command does once its arguments are read: gives the exit status. Its output goes through the
// context.
using Action = std::function<int(Context&)>;

namespace status {
constexpr int done = 0;
constexpr int refused = 1; // the fixed text is on standard error, nothing is half-written
constexpr int usage = 2;
} // namespace status

// A refusal as a terminal shows it: the fixed words as they are, the rest on lines under them.
std::string onLines(const Refusal& refusal);

// Refused or failed: the text of the message box, for standard error; exit status 1.
class Refused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    explicit Refused(const Refusal& refusal) : std::runtime_error(onLines(refusal)) {}
};

// Arguments that make no sense (a range outside the file, an unknown type); exit status 2.
class WrongUsage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The value, or Refused with its refusal.
template <typename Value>
Value valueOrRefused(Expected<Value> result) {
    if (!result)
        throw Refused(result.error());
    return *std::move(result);
}

// Wrong for this file, but perhaps not for others: a range outside it, a window that its interval does not
// fit.
class WrongForFile : public WrongUsage {
public:
    using WrongUsage::WrongUsage;
};

// How the chosen command of a context ended.
struct Ended {
    int status = status::done;
    std::string reason = {};   // why it was refused or what is wrong with its arguments
    bool wrongForFile = false; // the arguments do not fit this file, but may fit others
};

// Runs the chosen command.
Ended runAction(Context& context);

// Adds one command, with what it does and the option --at that every command has, to the program.
//   CLI::App& command = addCommand(program, context, "name", "what it does", action);
// The options write into variables that the action shares (a std::shared_ptr).
using AddCommand = void (*)(CLI::App& program, Context& context);

CLI::App& addCommand(CLI::App& program, Context& context, const std::string& name,
                     const std::string& description, Action action);

// Every command of the program, in the order of its help page. One line each in Commands.cpp.
const std::vector<AddCommand>& allCommands();

} // namespace tally::cli
