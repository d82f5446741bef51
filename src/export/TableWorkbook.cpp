// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/TableWorkbook.h"

#include "core/ModeTable.h"
#include "core/Text1252.h"

namespace tally {

namespace {

constexpr double timeWidth = 17;
constexpr double valueWidth = 14;

std::vector<Cell> headings(const char* first, const std::vector<std::string>& names) {
    std::vector<Cell> row = {std::string(first)};
    row.insert(row.end(), names.begin(), names.end());
    return row;
}

NumberCell inUnits(int tenths) {
    return {tenths / 10.0, 1};
}

std::string unitText(const FileFacts& info) {
    return {info.unit()};
}

WorkbookChart chartOf(const Recordings& recordings, const ReadingTable& table) {
    WorkbookChart chart{.title = "Readings",
                        .xTitle = "Time",
                        .yTitle = unitText(recordings.info(0)),
                        .xIsTime = true,
                        .column = static_cast<int>(table.columns.size()) + 2};
    const int last = table.axis.points;
    for (int column = 1; column <= static_cast<int>(table.columns.size()); ++column)
        chart.lines.push_back({{0, 1, last}, {column, 1, last}});
    return chart;
}

Sheet readingsSheet(const Recordings& recordings, const ReadingTable& table) {
    std::vector<std::string> names;
    for (const TableColumn& column : table.columns)
        names.push_back(column.name);
    Sheet sheet{.name = "Readings", .rows = {headings("Time", names)}, .widths = {timeWidth}};
    sheet.widths.resize(names.size() + 1, valueWidth);
    sheet.rows.reserve(static_cast<std::size_t>(table.axis.points) + 1);
    for (int row = 0; row < table.axis.points; ++row) {
        std::vector<Cell> cells = {table.axis.timeOf(row)};
        cells.reserve(names.size() + 1);
        for (const TableColumn& column : table.columns)
            cells.emplace_back(inUnits(table.tenths(recordings, row, column)));
        sheet.rows.push_back(std::move(cells));
    }
    sheet.charts.push_back(chartOf(recordings, table));
    return sheet;
}

// A row of facts: a label, then what `fact` says of each file.
template <typename Fact>
void addFact(Sheet& sheet, const Recordings& recordings, const char* label, Fact fact) {
    std::vector<Cell> row = {std::string(label)};
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        row.emplace_back(fact(recordings.info(slot), recordings.gNotes[static_cast<std::size_t>(slot)]));
    sheet.rows.push_back(std::move(row));
}

Sheet factsSheet(const Recordings& recordings) {
    using Info = const FileFacts&;
    using Notes = const std::array<std::string, 4>&;
    Sheet sheet{.name = "Facts", .rows = {headings("File", fileNames(recordings))}, .widths = {timeWidth}};
    sheet.widths.resize(sheet.rows.front().size(), 24);
    const auto add = [&](const char* label, auto fact) { addFact(sheet, recordings, label, fact); };
    add("Path", [](Info info, Notes) { return info.path; });
    add("Serial number", [](Info info, Notes) { return toUtf8(info.serial); });
    add("Unit", [](Info info, Notes) { return unitText(info); });
    add("Mode", [](Info info, Notes) {
        return std::string(isMinMaxAvg(info.modeLetter) ? "Min/Max/Avg" : "Average");
    });
    add("Interval, minutes", [](Info info, Notes) {
        return NumberCell{1.0 * modeRow(info.modeLetter).minutes, 0};
    });
    add("When full", [](Info info, Notes) { return std::string(modeRow(info.modeLetter).whenFull); });
    add("Range", [](Info info, Notes) { return std::string(info.rangeWord()); });
    add("First reading", [](Info info, Notes) { return info.start; });
    add("Last reading", [](Info info, Notes) { return timeOf(info, info.count - 1); });
    add("Number of readings", [](Info info, Notes) { return NumberCell{1.0 * info.count, 0}; });
    add("Minimum", [](Info info, Notes) { return inUnits(info.smallest); });
    add("Maximum", [](Info info, Notes) { return inUnits(info.largest); });
    add("Not readable as numbers", [](Info info, Notes) { return NumberCell{1.0 * info.unreadable, 0}; });
    add("Location", [](Info, Notes notes) { return notes[0]; });
    add("Circuit", [](Info, Notes notes) { return notes[1]; });
    add("Name", [](Info, Notes notes) { return notes[2]; });
    add("Other", [](Info, Notes notes) { return notes[3]; });
    return sheet;
}

} // namespace

Workbook tableWorkbook(const Recordings& recordings, const ReadingTable& table, ReadingTime made) {
    return {{readingsSheet(recordings, table), factsSheet(recordings)}, made};
}

} // namespace tally
