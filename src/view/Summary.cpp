// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Summary.h"

#include "core/ModeTable.h"
#include "core/Text1252.h"

#include <array>

namespace tally {

namespace {

constexpr std::array<const char*, 4> labels = {"Loc:    ", "Name: ", "Circ:    ", "Other: "};
// Notes are kept as location, circuit, name, other; a summary prints the name second.
constexpr std::array<std::size_t, 4> order = {0, 2, 1, 3};

} // namespace

std::string leftIn(std::string_view text, std::size_t width) {
    std::string field(text);
    if (field.size() < width)
        field.resize(width, ' ');
    return field;
}

std::string modeFacts(const FileFacts& info) {
    const ModeRow& mode = modeRow(info.modeLetter);
    return std::string(mode.whenFull) + "  " + std::to_string(mode.minutes) +
           " min interval                  " + "  Range  " + info.rangeWord();
}

std::string fileLine(const FileFacts& info) {
    return "    File:     " + info.path + "             " + "Ser. " + toUtf8(info.serial) + "\r\n";
}

std::string noteLines(const Recordings& recordings, int slot) {
    std::string text;
    for (std::size_t i = 0; i < labels.size(); ++i)
        text += labels[i] + recordings.gNotes.at(static_cast<std::size_t>(slot))[order[i]] + "\r\n";
    return text;
}

} // namespace tally
