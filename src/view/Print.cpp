// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Print.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "view/Range.h"
#include "view/TableText.h"

namespace tally {

namespace {

constexpr TableLayout eightReadings = {" Time     Date                            Eight readings of average",
                                       8, "  000.0", "    000 "};
constexpr TableLayout sixReadings = {" Time     Date                             Six readings of average", 6,
                                     "     000.0  ", "       000  "};
constexpr TableLayout tenReadings = {" Time     Date                             Ten readings of average", 10,
                                     "000.0", "   000"};
constexpr TableLayout triples = {
    " Time     Date                 Avg          Max           Min           Avg   "
    "         Max           Min",
    6, "     000.0 ", "       000  "};

const TableLayout& layoutOf(char letter) {
    if (isMinMaxAvg(letter))
        return triples;
    if (letter == 'b' || letter == 'e')
        return sixReadings;
    return letter == 'c' || letter == 'f' ? tenReadings : eightReadings;
}

} // namespace

Table Print(const Recordings& recordings, int slot, const Range& range) {
    if (slot < 0 || slot >= Recordings::slotCount || !recordings.isOpen(slot))
        throw fault::subscript();
    const FileFacts& info = recordings.info(slot);
    const TableLayout& layout = layoutOf(info.modeLetter);
    const int intervalsPerLine = layout.perLine / valuesPerInterval(info.modeLetter);
    const int minutesPerLine = modeRow(info.modeLetter).minutes * intervalsPerLine;
    Table table{std::string(layout.heading), {}};
    tableText(table.text, present(recordings, slot, range), layout, !info.low,
              {timeOf(info, range.first), minutesPerLine});
    return table;
}

} // namespace tally
