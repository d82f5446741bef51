// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ReadingTable.h"

#include "core/Recordings.h"

#include <algorithm>

namespace tally {

namespace {

struct TripleColumn {
    const char* word;
    int offset;
};
// In the order of the columns; a triple holds average, maximum, minimum.
constexpr TripleColumn tripleColumns[] = {{" min", 2}, {" max", 1}, {" avg", 0}};

} // namespace

std::vector<std::string> fileNames(const Recordings& recordings) {
    std::vector<std::string> names;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const std::string name = fileNameOf(recordings.info(slot).path);
        std::string unique = name;
        for (int number = 2; std::find(names.begin(), names.end(), unique) != names.end(); ++number)
            unique = name + " (" + std::to_string(number) + ")";
        names.push_back(unique);
    }
    return names;
}

Expected<ReadingTable> readingTable(const Recordings& recordings, std::optional<Range> range) {
    auto axis = timeAxis(recordings, range);
    if (!axis)
        return tl::make_unexpected(std::move(axis.error()));
    ReadingTable table{std::move(*axis), {}};
    int file = 0;
    for (const std::string& name : fileNames(recordings)) {
        if (table.axis.stride == 1)
            table.columns.push_back({name, file, 0});
        else
            for (const TripleColumn& one : tripleColumns)
                table.columns.push_back({name + one.word, file, one.offset});
        ++file;
    }
    return table;
}

std::string tenthsText(int tenths, char decimalSign) {
    const int size = tenths < 0 ? -tenths : tenths;
    std::string text = tenths < 0 ? "-" : "";
    text += std::to_string(size / 10);
    text += decimalSign;
    text += static_cast<char>('0' + size % 10);
    return text;
}

} // namespace tally
