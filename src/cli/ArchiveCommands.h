// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Kept.h"
#include "cli/Command.h"
#include "cli/Json.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

// The commands below `archive`, some to a file.
namespace tally::cli {

void addArchiveInit(CLI::App& archive, Context& context);
void addArchiveAdd(CLI::App& archive, Context& context);
void addArchiveFind(CLI::App& archive, Context& context); // and show
void addArchiveGet(CLI::App& archive, Context& context);
void addArchivePeaks(CLI::App& archive, Context& context);
void addArchiveYears(CLI::App& archive, Context& context); // coverage, growth
void addArchiveTypical(CLI::App& archive, Context& context);
void addArchiveStation(CLI::App& archive, Context& context);
void addArchiveWhole(CLI::App& archive, Context& context);  // stats, verify
void addArchiveChange(CLI::App& archive, Context& context); // assign, remove
void addArchiveCopies(CLI::App& archive, Context& context); // backup, copy

// --from and --to of a command, as they were typed; nothing where they were not. `from` throws WrongUsage for
// ends that are turned round.
struct DateOptions {
    std::string fromText;
    std::string toText;
    std::optional<int> from() const;
    std::optional<int> to() const;
};
// Adds an option that takes nothing but a date.
CLI::Option* addDate(CLI::App& command, const std::string& name, std::string& date, const std::string& what);
void addDates(CLI::App& command, DateOptions& dates);

// A figure, or null when there is none.
Json figure(const std::optional<double>& value);
Json jsonOf(const archive::Entry& entry);
// One line: name, names of the places, times, peak.
std::string lineOf(const archive::Entry& entry);
// A figure with some decimals, "-" for none.
std::string figureText(const std::optional<double>& value, int decimals = 1);

} // namespace tally::cli
