// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "core/Recordings.h"
#include "core/TimeAxis.h"
#include "view/Display.h"
#include "view/FilesTogether.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tally::cli {

// The options --from and --to of a command, as they were typed.
struct RangeOptions {
    std::optional<std::string> from;
    std::optional<std::string> to;
    bool given() const { return from || to; }
};

// The files that a command names, opened, with the range applied.
struct OpenFiles {
    Recordings recordings;
    Display display;
    TimeOfFiles time; // of the files as they were opened

    // What a command covers of the first file: the applied range, else every whole interval.
    Range part() const { return display.displayed(recordings); }
    // The same for what counts in readings.
    Range readings() const { return display.zoomed() ? part() : recordings.all(0); }
};

// Adds --from and --to.
std::shared_ptr<RangeOptions> addRange(CLI::App& command);
// Adds the positional FILE, or FILE... (one to three).
std::shared_ptr<std::string> addFile(CLI::App& command);
std::shared_ptr<std::vector<std::string>> addFiles(CLI::App& command);

// Opens files, the first one current. Items that were no numbers are warned of. Throws Refused with the text
// of what was refused.
OpenFiles openFiles(Context& context, const std::vector<std::string>& paths);
// The same with the range marked and applied. Throws WrongUsage for a bad range.
OpenFiles openFiles(Context& context, const std::vector<std::string>& paths, const RangeOptions& range);

// The given range as indexes of a file with so many readings; nothing when none is given. Throws WrongUsage
// for one whose ends are no numbers, turned round or outside the file.
std::optional<Range> indexRange(const RangeOptions& range, int count);

// Adds --align.
std::shared_ptr<bool> addAlign(CLI::App& command);
// Opens files with the range applied as above; aligned, they are cut to the time that they share, so that
// reading i of each stands for the same time. Throws Refused when they share none.
OpenFiles openTogether(Context& context, const std::vector<std::string>& paths, const RangeOptions& range,
                       bool align);

// Says on standard error what must be known before the files are read side by side.
void warnTogether(Context& context, const OpenFiles& open);

// Writes a file as a whole. Throws Refused that names the file and the cause.
void writeFile(Context& context, const std::string& path, const std::string& bytes);
// Looks whether a file of so many bytes could be written, before anything is. Throws as writeFile() would.
void checkPlace(const std::string& path, std::uint64_t bytes);

} // namespace tally::cli
