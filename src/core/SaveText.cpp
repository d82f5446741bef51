// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SaveText.h"

#include "core/DataItems.h"
#include "core/Fault.h"
#include "core/Header.h"
#include "core/ModeTable.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace tally {

namespace {

constexpr std::string_view leadingBreaks = "\r\n\n\n";
constexpr std::string_view formItem = "T: ";
constexpr int valuesPerLine = 10;

// The largest whole number whose tenths fit 16 bits; one more would never be read back.
constexpr int maximumWhole = 3276;

// Tenths as "##0.0" (LOW) or "###0", right-aligned to its field.
void appendValue(std::string& text, int tenths, bool low) {
    std::array<char, 8> field{};
    std::size_t at = field.size();
    // "###0" rounds halves away from zero.
    int rest = low ? std::abs(tenths) : std::min((std::abs(tenths) + 5) / 10, maximumWhole);
    const bool negative = tenths < 0 && rest != 0;
    if (low) {
        field[--at] = static_cast<char>('0' + rest % 10);
        field[--at] = '.';
        rest /= 10;
    }
    do {
        field[--at] = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest > 0);
    if (negative)
        field[--at] = '-';
    const std::size_t width = low ? 5 : 4;
    const std::size_t length = field.size() - at;
    if (length < width)
        text.append(width - length, ' ');
    text.append(field.data() + at, length);
}

} // namespace

// Triples are counted from the newest reading; at the oldest end what is over goes along.
Range rangeToSave(const Recordings& recordings, int slot, const Range& wanted) {
    const FileFacts& info = recordings.info(slot);
    const int newest = info.count - 1;
    Range range{wanted.first, std::min(wanted.last, newest)};
    if (range.first < 0 || range.first > range.last)
        throw fault::subscript();
    if (isMinMaxAvg(info.modeLetter)) {
        range.last += (newest - range.last) % 3;
        range.first = std::max(range.first - (3 - (newest - range.first + 1) % 3) % 3, 0);
    }
    return range;
}

std::string buildDataText(const Recordings& recordings, int slot, const Range& wanted) {
    const FileFacts& info = recordings.info(slot);
    const Range range = rangeToSave(recordings, slot, wanted);
    const auto& readings = recordings.gReadings.at(static_cast<std::size_t>(slot));

    std::string header = info.header;
    putTime(header, column::time, timeOf(info, range.last));
    std::string text(leadingBreaks);
    text.reserve(static_cast<std::size_t>(range.last - range.first + 1) * 6 + 200);
    text += header;
    text += '\r';
    if (info.form == 'T')
        text += formItem;
    int onLine = 0;
    for (int i = range.last; i >= range.first; --i, ++onLine) {
        if (onLine == valuesPerLine) {
            text += "\n\r";
            onLine = 0;
        }
        appendValue(text, readings.at(static_cast<std::size_t>(i)), info.low);
    }
    text += terminator;
    return text;
}

void buildText(Recordings& recordings, int slot, const Range& wanted) {
    recordings.gText = buildDataText(recordings, slot, wanted);
    recordings.gDateX = wanted.last;
}

std::string quoted(std::string_view text) {
    std::string item;
    item.reserve(text.size() + 4);
    item += '"';
    item += text;
    item += "\"\r\n";
    return item;
}

} // namespace tally
