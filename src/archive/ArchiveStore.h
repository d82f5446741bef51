// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Kept.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tally::archive {

// Which recordings are meant; what is not given does not narrow. Names are compared whole, words as parts,
// upper and lower case alike.
struct Selection {
    std::vector<std::string> words; // each must occur
    std::optional<std::string> serial;
    std::optional<std::string> station;
    std::optional<std::string> circuit;
    std::optional<char> unit; // 'A' or 'V'
    std::optional<int> from;  // a reading on this date or later
    std::optional<int> to;    // a reading on this date or earlier
    std::optional<IdBeginning> id;
    std::size_t maximum = 0; // how many to give at most; 0: all
};

// The bytes of a recording, as they were packed.
struct Body {
    std::string bytes;
    std::optional<std::string> notesFile;
    std::string readings;
    std::string days;
};

// Dates between which a recording has a reading on every one, both included.
struct DaySpan {
    int first = 0;
    int last = 0;
};

// What is in the whole archive.
struct Stats {
    std::int64_t recordings = 0;
    std::int64_t readings = 0;
    std::int64_t circuits = 0;
    std::int64_t stations = 0;
    std::int64_t bytes = 0; // of the files
    std::optional<DaySpan> days;
};

// Where recordings are kept. Every call is whole: it is done, or it throws StoreFault and nothing of it is.
// A store belongs to the thread that opened it.
class ArchiveStore {
public:
    virtual ~ArchiveStore() = default;

    // Keeps recordings, in their order, and gives for each whether it was new. Of one that is there already
    // the path is noted, and the notes are taken when there were none.
    virtual std::vector<bool> add(const std::vector<Kept>& recordings) = 0;
    // Gives a recording another station and circuit; false when there is no such recording.
    virtual bool assign(Id id, const std::string& station, const std::string& circuit) = 0;
    // False when there is no such recording.
    virtual bool remove(Id id) = 0;

    // Ordered by station, circuit, start. Without sources; see addSources().
    virtual std::vector<Entry> find(const Selection& selection) = 0;
    virtual void addSources(std::vector<Entry>& entries) = 0;
    // The next recordings in the order of adding, with sources.
    virtual std::vector<Entry> page(std::int64_t after, std::size_t maximum) = 0;
    virtual std::vector<DaySpan> spans(const Selection& selection) = 0;
    virtual Stats stats() = 0;

    // The packed day figures or readings of some recordings, handed over one by one in any order.
    using Receive = std::function<void(Id id, std::string_view bytes)>;
    virtual void dayFigures(const std::vector<Id>& ids, const Receive& receive) = 0;
    virtual void readings(const std::vector<Id>& ids, const Receive& receive) = 0;
    // Nothing when there is no such recording.
    virtual std::optional<Body> body(Id id) = 0;

    // Writes the whole archive into an SQLite file that is not there yet.
    virtual void backup(const std::string& path) = 0;
};

} // namespace tally::archive
