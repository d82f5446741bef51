// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/SqlEntry.h"

#include <QVariant>

namespace tally::rows {

using archive::Entry;
using archive::Kept;
using archive::Source;

namespace {

// Between texts that share a column; none of them holds it.
constexpr char unit = '\x1f';

std::vector<std::string> split(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (auto end = text.find(unit); end != std::string::npos; end = text.find(unit, begin)) {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    parts.push_back(text.substr(begin));
    return parts;
}

template <typename Texts>
std::string joined(const Texts& texts) {
    std::string whole;
    bool first = true;
    for (std::string text : texts) {
        for (char& c : text)
            c = c == unit ? ' ' : c;
        whole += (first ? std::string() : std::string(1, unit)) + text;
        first = false;
    }
    return whole;
}

const std::vector<const char*> recordingColumns = {
    "id",        "sha",        "added",       "serial",      "station",     "circuit",
    "assigned",  "unit",       "mode",        "minutes",     "starts",      "ends",
    "first_day", "last_day",   "readings",    "lowest",      "size",        "points",
    "total",     "highest",    "highest_at",  "blocks",      "block_total", "block_highest",
    "notes",     "serial_key", "station_key", "circuit_key", "noted"};
constexpr std::size_t readColumns = 25;

SqlRow recordingRow(const Kept& kept, std::int64_t added, const archive::ArchiveTools& tools) {
    const Entry& entry = kept.entry;
    const archive::Figures& figures = entry.figures;
    return {entry.id,
            Blob{entry.sha},
            added,
            entry.serial,
            entry.belonging.station,
            entry.belonging.circuit,
            std::int64_t{entry.belonging.assigned ? 1 : 0},
            std::string(1, entry.unit),
            std::string(1, entry.mode),
            std::int64_t{entry.interval},
            entry.start.minutes,
            entry.end.minutes,
            std::int64_t{entry.firstDay},
            std::int64_t{entry.lastDay},
            std::int64_t{entry.count},
            std::int64_t{entry.lowest},
            entry.size,
            figures.points,
            figures.total,
            figures.highest,
            figures.highestAt.minutes,
            figures.blocks,
            figures.blockTotal,
            figures.blockHighest,
            notesText(entry.notes),
            nameKey(entry.serial, tools),
            nameKey(entry.belonging.station, tools),
            nameKey(entry.belonging.circuit, tools),
            std::int64_t{kept.notesFile ? 1 : 0}};
}

char letterOf(const QVariant& value) {
    const QByteArray text = value.toString().toLatin1();
    return text.isEmpty() ? ' ' : text[0];
}

} // namespace

const std::string& entryColumns() {
    static const std::string columns = [] {
        std::string list;
        for (std::size_t at = 0; at < readColumns; ++at)
            list += (at == 0 ? "" : ", ") + std::string(recordingColumns[at]);
        return list;
    }();
    return columns;
}

Entry entryFrom(const QSqlQuery& query) {
    int column = 0;
    const auto number = [&] { return static_cast<std::int64_t>(query.value(column++).toLongLong()); };
    const auto small = [&] { return static_cast<int>(number()); };
    const auto text = [&] { return query.value(column++).toString().toStdString(); };
    Entry entry;
    entry.id = number();
    entry.sha = query.value(column++).toByteArray().toStdString();
    entry.added = number();
    entry.serial = text();
    entry.belonging.station = text();
    entry.belonging.circuit = text();
    entry.belonging.assigned = number() != 0;
    entry.unit = letterOf(query.value(column++));
    entry.mode = letterOf(query.value(column++));
    entry.interval = small();
    entry.start = {number()};
    entry.end = {number()};
    entry.firstDay = small();
    entry.lastDay = small();
    entry.count = small();
    entry.lowest = small();
    entry.size = number();
    entry.figures.points = number();
    entry.figures.total = number();
    entry.figures.highest = number();
    entry.figures.highestAt = {number()};
    entry.figures.blocks = number();
    entry.figures.blockTotal = number();
    entry.figures.blockHighest = number();
    const std::vector<std::string> notes = split(text());
    for (std::size_t at = 0; at < entry.notes.size() && at < notes.size(); ++at)
        entry.notes[at] = notes[at];
    return entry;
}

NewRows::NewRows(const archive::ArchiveTools& tools)
    : tools_(tools),
      tables_{{"recording", recordingColumns, {}},
              {"source", {"id", "place", "path", "names"}, {}},
              {"words", {"id", "text"}, {}},
              {"daily", {"id", "figures"}, {}},
              {"body", {"id", "readings", "bytes", "notes"}, {}}} {}

void NewRows::add(const Kept& kept, std::int64_t added) {
    const Entry& entry = kept.entry;
    tables_[0].rows.push_back(recordingRow(kept, added, tools_));
    for (std::size_t at = 0; at < entry.sources.size(); ++at)
        tables_[1].rows.push_back(sourceRow(entry.id, static_cast<std::int64_t>(at), entry.sources[at]));
    tables_[2].rows.push_back({entry.id, archive::searchText(entry, tools_)});
    tables_[3].rows.push_back({entry.id, Blob{archive::packDays(kept.days)}});
    tables_[4].rows.push_back({entry.id, Blob{kept.readings}, Blob{kept.bytes},
                               kept.notesFile ? SqlValue(Blob{*kept.notesFile}) : SqlValue()});
}

SqlRow sourceRow(archive::Id id, std::int64_t place, const Source& source) {
    return {id, place, source.path, joined(source.names)};
}

Source sourceFrom(const std::string& path, const std::string& names) {
    return {path, split(names)};
}

std::string notesText(const Notes& notes) {
    return joined(notes);
}

std::string nameKey(const std::string& name, const archive::ArchiveTools& tools) {
    constexpr const char* blanks = " \t\r\n";
    const auto first = name.find_first_not_of(blanks);
    return first == std::string::npos
               ? std::string()
               : tools.fold(name.substr(first, name.find_last_not_of(blanks) - first + 1));
}

} // namespace tally::rows
