// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fuzz.h"

#include "core/NotesFile.h"
#include "core/Text1252.h"

#include <algorithm>

namespace tally::fuzz {

namespace {

// Commas split a note, and quotes around it are taken off.
bool readsBack(const std::string& note) {
    const auto begin = note.find_first_not_of(" \t");
    return note.find(',') == std::string::npos && (begin == std::string::npos || note[begin] != '"');
}

} // namespace

} // namespace tally::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tally;
    const Notes notes = parseNotes(fuzz::asText(data, size));
    for (const std::string& note : notes) {
        fuzz::require(note.find_first_of("\r\n") == std::string::npos, "a note is one line");
        fuzz::require(repairedUtf8(note) == note, "a note is UTF-8");
    }
    const Notes again = parseNotes(formatNotes(notes));
    if (std::all_of(notes.begin(), notes.end(), fuzz::readsBack))
        fuzz::require(again == notes, "what is written is read back");
    return 0;
}
