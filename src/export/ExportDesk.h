// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Prompt.h"
#include "core/Recordings.h"
#include "view/DisplayState.h"

#include <string>
#include <string_view>

namespace tally {

// What the exports work with.
struct ExportDesk {
    Recordings& recordings;
    DisplayState& state;
    Files& files;
    Prompt& prompt;
    std::string directory; // the default directory; empty for the folder of the data file
};

enum class ExportOutcome {
    saved,
    noFile,      // no file is open
    noView,      // the view whose data the command writes was not shown since the last export: nothing said
    wrongMode,   // not a 15-minute average recording
    tableError,  // a line of the table is too short; what was converted before it stands in the file
    badFactor,   // a power factor above 1
    noWholeHour, // no midnight in the range, or no whole hour after it
    noPower,     // the power of the range was not worked out; whoever was to do so has said why
    cancelled,   // the question for the identifier was
    badId,       // an identifier that would break its field
    ownFile      // the export would replace an open data file
};

inline constexpr std::string_view noFileToExport = "Error - No file available. Need to open a file.";
inline constexpr std::string_view exportOverData =
    "The export would replace an open data file. Nothing was written.";

// A folder and a name as one path: joined by "\" on Windows, by "/" elsewhere.
std::string joinPath(const std::string& folder, const std::string& name);

// The path of an export with a fixed name, for the data file of a slot.
std::string exportPath(const ExportDesk& desk, int slot, const std::string& name);

// Whether a path is that of an open data file, which an export must not replace; tells it then.
bool refuseOwnFile(const ExportDesk& desk, const std::string& path);

} // namespace tally
