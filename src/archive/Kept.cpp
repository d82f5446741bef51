// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/Kept.h"

#include "archive/Day.h"
#include "archive/Packed.h"
#include "core/DataText.h"
#include "core/Fault.h"
#include "core/Fileopen.h"
#include "core/ModeTable.h"
#include "core/Text1252.h"

#include <algorithm>

namespace tally::archive {

namespace {

// Between two texts that are searched: no word reaches from one into the other.
constexpr char between = '\x01';

// A text as every store can hold it: character 0 ends a text in some.
std::string withoutZero(std::string text) {
    for (std::size_t at = 0; (at = text.find('\0', at)) != std::string::npos; ++at)
        text.replace(at, 1, "\xEF\xBF\xBD");
    return text;
}

std::string trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

Notes notesOf(const std::optional<std::string>& file) {
    Notes notes = file ? parseNotes(*file) : Notes{};
    std::transform(notes.begin(), notes.end(), notes.begin(), withoutZero);
    return notes;
}

Entry entryOf(const FileFacts& facts, const Load& load) {
    Entry entry;
    entry.serial = withoutZero(toUtf8(facts.serial));
    entry.unit = facts.unit();
    entry.mode = facts.modeLetter;
    entry.interval = load.interval;
    entry.start = load.start;
    entry.end = load.at(load.points());
    entry.firstDay = dayOf(load.start);
    entry.lastDay = dayOf(load.at(load.points() - 1));
    entry.count = facts.count;
    entry.lowest = load.low(0);
    for (std::size_t point = 1; point < load.points(); ++point)
        entry.lowest = std::min<int>(entry.lowest, load.low(point));
    return entry;
}

} // namespace

Belonging belongingOf(const Notes& notes) {
    return {trimmed(notes[0]), trimmed(notes[1]), false};
}

Expected<Kept> keptOf(const std::string& bytes, const std::optional<std::string>& notesFile, Source source,
                      const ArchiveTools& tools) {
    const auto text = readDataText(bytes);
    if (!text)
        return refuse(badFileText, source.path);
    const Load load = loadOf(text->facts, text->readings);
    if (load.points() == 0)
        return refuse(badFileText, source.path, "It holds no whole interval.");
    Kept kept;
    kept.entry = entryOf(text->facts, load);
    kept.entry.sha = tools.sha256(bytes);
    kept.entry.id = idOf(kept.entry.sha);
    kept.entry.size = static_cast<std::int64_t>(bytes.size());
    kept.entry.notes = notesOf(notesFile);
    kept.entry.belonging = belongingOf(kept.entry.notes);
    kept.entry.sources.push_back(std::move(source));
    kept.days = dayFiguresOf(load);
    kept.entry.figures = kept.days.whole();
    const auto stride = static_cast<std::size_t>(valuesPerInterval(kept.entry.mode));
    kept.readings = tools.squeeze(packReadings(text->readings, stride));
    kept.bytes = tools.squeeze(bytes);
    kept.notesFile = notesFile;
    return kept;
}

std::string searchText(const Entry& entry, const ArchiveTools& tools) {
    std::string text = entry.serial;
    const auto append = [&](const std::string& more) { text += between + more; };
    append(entry.belonging.station);
    append(entry.belonging.circuit);
    std::for_each(entry.notes.begin(), entry.notes.end(), append);
    for (const Source& source : entry.sources)
        std::for_each(source.names.begin(), source.names.end(), append);
    return tools.fold(text);
}

std::optional<std::vector<std::int16_t>> readingsOf(std::string_view packed, char mode,
                                                    const ArchiveTools& tools) {
    const auto bytes = tools.unsqueeze(packed);
    if (!bytes)
        return std::nullopt;
    return unpackReadings(*bytes, static_cast<std::size_t>(valuesPerInterval(mode)));
}

Load loadOf(const Entry& entry, std::string_view packed, const ArchiveTools& tools) {
    const auto readings = readingsOf(packed, entry.mode, tools);
    if (!readings || static_cast<int>(readings->size()) != entry.count)
        throw fault::deviceIo();
    FileFacts facts;
    facts.modeLetter = entry.mode;
    facts.count = entry.count;
    Load load = loadOf(facts, *readings);
    load.start = entry.start;
    return load;
}

} // namespace tally::archive
