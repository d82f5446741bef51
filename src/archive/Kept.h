// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/ArchiveTools.h"
#include "archive/DayFigures.h"
#include "archive/Identity.h"
#include "core/NotesFile.h"
#include "core/Refusal.h"

#include <optional>
#include <string>
#include <vector>

namespace tally::archive {

// The names under which a recording is searched for and its loads are put together. They come from the notes
// (Location is the station, Circuit the circuit, blanks around them taken off) until somebody assigns others.
struct Belonging {
    std::string station;
    std::string circuit;
    bool assigned = false; // by hand
};

Belonging belongingOf(const Notes& notes);

// Where a file came from: its full path, and the names of the file and its folders that it is found by.
struct Source {
    std::string path;
    std::vector<std::string> names;
};

// What the archive knows of a recording without looking into its bytes.
struct Entry {
    Id id = 0;
    std::string sha;        // 32 bytes
    std::int64_t added = 0; // rises in the order of adding
    std::string serial;     // as in the header (UTF-8)
    Belonging belonging;
    char unit = 'A';
    char mode = 'a';
    int interval = 15; // minutes
    ReadingTime start; // of the first reading
    ReadingTime end;   // when the interval of the last one is over
    int firstDay = 0;  // dates of the first and the last interval
    int lastDay = 0;
    int count = 0;         // readings, three an interval in a Min/Max/Avg recording
    int lowest = 0;        // tenths
    std::int64_t size = 0; // bytes of the file
    Figures figures;       // of the whole recording
    Notes notes;
    std::vector<Source> sources; // where it was added from, in that order

    std::string name() const { return nameOf(sha); }
};

// A recording as a store keeps it.
struct Kept {
    Entry entry; // `added` is the store's
    DayFigures days;
    std::string readings;                 // packed and squeezed
    std::string bytes;                    // squeezed
    std::optional<std::string> notesFile; // its bytes as they lay beside the file
};

// Makes what is kept of a data file. Refused with the words that opening such a file is refused with.
Expected<Kept> keptOf(const std::string& bytes, const std::optional<std::string>& notesFile, Source source,
                      const ArchiveTools& tools);

// The texts that a recording is searched in, folded, one after the other.
std::string searchText(const Entry& entry, const ArchiveTools& tools);

// The readings that were packed; nothing when they are damaged.
std::optional<std::vector<std::int16_t>> readingsOf(std::string_view packed, char mode,
                                                    const ArchiveTools& tools);

// The load of a recording from its packed readings. Throws Device I/O when they are damaged.
Load loadOf(const Entry& entry, std::string_view packed, const ArchiveTools& tools);

} // namespace tally::archive
