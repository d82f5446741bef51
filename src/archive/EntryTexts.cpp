// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/EntryTexts.h"

#include "core/Numbers.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tally::archive {

namespace {

constexpr std::string_view ending = ".dat";

std::string clock(ReadingTime time) {
    return formatTime(time, "%Y-%m-%d %H:%M");
}

std::string notesOf(const Entry& entry) {
    std::string text;
    for (const std::string& note : entry.notes)
        if (!note.empty() && note != entry.belonging.station && note != entry.belonging.circuit)
            text += (text.empty() ? "" : ", ") + note;
    return text;
}

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// A text in a column: cut, or filled with blanks, counted in characters.
std::string inColumn(const std::string& text, std::size_t width) {
    std::string kept;
    std::size_t characters = 0;
    for (const char c : text) {
        if (!isContinuation(c) && ++characters > width)
            break;
        kept += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
    return kept + std::string(width - std::min(characters, width), ' ') + ' ';
}

std::string lineOf(const EntryTexts& texts) {
    constexpr std::array<std::size_t, 8> widths = {22, 18, 6, 16, 16, 9, 6, 24};
    const std::array<const std::string*, 8> cells = {&texts.circuit,    &texts.station, &texts.serial,
                                                     &texts.from,       &texts.to,      &texts.peak,
                                                     &texts.loadFactor, &texts.notes};
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at)
        line += inColumn(*cells[at], widths[at]);
    return line.substr(0, line.find_last_not_of(' ') + 1) + "\r\n";
}

} // namespace

EntryTexts textsOf(const Entry& entry) {
    const auto factor = loadFactorOf(entry.figures, entry.unit);
    return {entry.belonging.circuit,
            entry.belonging.station,
            entry.serial,
            clock(entry.start),
            clock(entry.end),
            plainTenths(static_cast<std::int32_t>(entry.figures.highest)) + " " + entry.unit,
            factor ? Format(*factor, "0.000") : "-",
            notesOf(entry)};
}

PrintedList printedList(const std::vector<Entry>& entries) {
    PrintedList list;
    list.heading = lineOf({"Circuit", "Station", "Serial", "From", "To", "Peak", "Factor", "Notes"});
    list.heading.resize(list.heading.size() - 2);
    for (const Entry& entry : entries)
        list.text += lineOf(textsOf(entry));
    return list;
}

std::string fileNameFor(const Entry& entry) {
    const auto source = std::find_if(entry.sources.begin(), entry.sources.end(),
                                     [](const Source& one) { return !one.names.empty(); });
    std::string name = source == entry.sources.end() ? entry.name() : source->names.back();
    std::replace_if(
        name.begin(), name.end(),
        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '/' || c == '\\' || c == ':'; }, '_');
    return name.ends_with(ending) && name.size() > ending.size() ? name : name + std::string(ending);
}

std::string fileNameFor(const Entry& entry, std::set<std::string>& taken) {
    const std::string name = fileNameFor(entry);
    std::string free = name;
    for (int number = 2; !taken.insert(free).second; ++number)
        free = name.substr(0, name.size() - ending.size()) + " (" + std::to_string(number) + ")" +
               std::string(ending);
    return free;
}

} // namespace tally::archive
