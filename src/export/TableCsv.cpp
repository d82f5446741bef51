// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/TableCsv.h"

#include "view/RunningTime.h"

namespace tally {

namespace {

constexpr std::string_view isoPattern = "%Y-%m-%d %H:%M";
constexpr std::string_view shownPattern = "%H:%M  %b %d, %y";

std::string quotedIfNeeded(const std::string& text, char separator) {
    if (text.find_first_of(std::string("\"\r\n") + separator) == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

} // namespace

std::string tableCsv(const Recordings& recordings, const ReadingTable& table, const CsvForm& form) {
    std::string text = "Time";
    for (const TableColumn& column : table.columns)
        text += form.separator + quotedIfNeeded(column.name, form.separator);
    text += "\r\n";
    RunningTime time(form.time == TimeForm::iso ? isoPattern : shownPattern, table.axis.start);
    for (int row = 0; row < table.axis.points; ++row) {
        text += quotedIfNeeded(time.text(), form.separator);
        for (const TableColumn& column : table.columns)
            text += form.separator +
                    quotedIfNeeded(tenthsText(table.tenths(recordings, row, column), form.decimal),
                                   form.separator);
        text += "\r\n";
        time.advance(table.axis.interval);
    }
    return text;
}

} // namespace tally
