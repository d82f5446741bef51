// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/CsvData.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "view/FieldWriter.h"
#include "view/Range.h"
#include "view/RunningTime.h"

#include <algorithm>
#include <span>

namespace tally {

namespace {

constexpr std::size_t readingsPerLine = 8;
constexpr std::string_view timeColumn = " %H:%M  %b %d, %y,";
constexpr std::size_t timeChars = 19;
constexpr std::string_view lowField = "  000.0";
constexpr std::string_view highField = " 0000 ";
// A 16-bit number makes a field of at most "  -3276.8,  ".
constexpr std::size_t maximumLineChars = timeChars + readingsPerLine * 12 + 2;

// A field, a comma and two blanks.
char* writeField(char* to, const FieldWriter& field, std::int16_t tenths) {
    char* const gap = field.write(to, tenths) - 2;
    return std::copy_n(",  ", 3, gap);
}

} // namespace

std::string csvText(const Recordings& recordings, int slot, const Range& range) {
    const FileFacts& info = recordings.info(slot);
    const FieldWriter field(info.low ? lowField : highField);
    const int minutesPerLine = modeRow(info.modeLetter).minutes * static_cast<int>(readingsPerLine);
    RunningTime time(timeColumn, timeOf(info, range.first));
    auto readings = present(recordings, slot, range);
    // Room for the longest lines, and for the writer, which may touch what comes after its field.
    std::string text((readings.size() / readingsPerLine + 1) * maximumLineChars + FieldWriter::maximumChars,
                     ' ');
    char* to = text.data();
    while (!readings.empty()) {
        const auto inLine = std::min(readingsPerLine, readings.size());
        to = std::copy_n(time.text().data(), timeChars, to);
        for (const std::int16_t tenths : readings.first(inLine))
            to = writeField(to, field, tenths);
        *to++ = '\r';
        *to++ = '\n';
        readings = readings.subspan(inLine);
        time.advance(minutesPerLine);
    }
    text.resize(static_cast<std::size_t>(to - text.data()));
    return text;
}

Expected<Exported> CsvData(const Recordings& recordings, int slot, const Range& range,
                           const ExportPlace& place) {
    if (slot < 0 || slot >= Recordings::slotCount || !recordings.isOpen(slot))
        return refuse(std::string(noFileToExport));
    const char letter = recordings.info(slot).modeLetter;
    if (letter != 'a' && letter != 'd')
        return refuse(std::string(csvWrongMode));
    const std::string path = exportPath(recordings, slot, std::string(csvName), place);
    if (const auto free = checkNotOpen(recordings, path, place.files); !free)
        return tl::make_unexpected(free.error());
    return writeExport(place.files, path, csvText(recordings, slot, range).append("\r\n"), " saved OK ");
}

} // namespace tally
