// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Recordings.h"
#include "core/Refusal.h"

#include <string>
#include <string_view>

namespace tally {

// Where an export goes.
struct ExportPlace {
    Files& files;
    std::string directory = {}; // the default directory; empty for the folder of the data file
};

// An export that was written.
struct Exported {
    std::string path;
    std::string text;      // what is said of it, the path included
    bool replaced = false; // a file of that name was there

    // As a message box says it: the fixed words alone on the first line.
    std::string message() const {
        return replaced ? text + "\r\nIt took the place of an earlier file." : text;
    }
};

inline constexpr std::string_view noFileToExport = "Error - No file available. Need to open a file.";
inline constexpr std::string_view exportOverData =
    "The export would replace an open data file. Nothing was written.";

// A folder and a name as one path: joined by "\" on Windows, by "/" elsewhere.
std::string joinPath(const std::string& folder, const std::string& name);

// The path of an export with a fixed name, for the data file of a slot.
std::string exportPath(const Recordings& recordings, int slot, const std::string& name,
                       const ExportPlace& place);

// Writes an export; `said` follows the path in what is said of it.
Exported writeExport(Files& files, const std::string& path, const std::string& bytes, std::string_view said);

// Refuses a path that is that of an open data file, which an export must not replace.
Expected<void> checkNotOpen(const Recordings& recordings, const std::string& path, const Files& files);

} // namespace tally
