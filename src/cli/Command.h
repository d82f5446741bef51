// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Services.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <stdexcept>
#include <string>

namespace tally {

// A command was refused or failed: its text goes to standard error, exit status 1.
class Refusal : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The program was called wrongly: text and usage line go to standard error, exit status 2.
class WrongUsage : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Adds a command to the program. What `run` returns is the exit status; it may throw Refusal, WrongUsage,
// Fault. Every command gets the option --at.
CLI::App* addCommand(CLI::App& program, Services& services, const std::string& name,
                     const std::string& description, std::function<int()> run);

// Writes the result to standard output, bytes as they stand. Throws Refusal when it cannot be written.
void out(std::string_view bytes);
// Progress and warnings, a line on standard error.
void warn(std::string_view line);

// One function a command; each stands in the file of its name.
void addInfo(CLI::App& program, Services& services);
void addReadings(CLI::App& program, Services& services);
void addSave(CLI::App& program, Services& services);
void addTable(CLI::App& program, Services& services);
void addSummary(CLI::App& program, Services& services);
void addPower(CLI::App& program, Services& services);
void addPlot(CLI::App& program, Services& services);
void addNotes(CLI::App& program, Services& services);
void addForce(CLI::App& program, Services& services);

} // namespace tally
