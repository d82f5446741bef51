// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printpwr.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "view/TableText.h"

namespace tally {

namespace {

constexpr TableLayout eightReadings = {
    " Time     Date               Eight readings of average power in KW      ", 8, "  000.0", " 0000 "};
constexpr TableLayout sixReadings = {
    " Time     Date               Six readings of average power in KW        ", 6, "     000.0  ",
    "      000  "};
constexpr TableLayout tenReadings = {
    " Time     Date               Ten readings of average power in KW        ", 10, "000.0", " 0000"};

const TableLayout& layoutOf(char letter) {
    if (letter == 'b' || letter == 'e')
        return sixReadings;
    return letter == 'c' || letter == 'f' ? tenReadings : eightReadings;
}

} // namespace

Table Printpwr(const Recordings& recordings, const Power& power) {
    if (!recordings.isOpen(0))
        throw fault::subscript();
    const FileFacts& info = recordings.info(0);
    const TableLayout& layout = layoutOf(info.modeLetter);
    Table table{std::string(layout.heading), {}};
    tableText(table.text, power.kilowatts, layout, !info.low,
              {timeOf(info, power.range.first), modeRow(info.modeLetter).minutes * layout.perLine});
    return table;
}

} // namespace tally
