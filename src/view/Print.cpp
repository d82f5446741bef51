// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Print.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "view/PlotSeries.h"
#include "view/ShownRange.h"
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

std::string Print(Recordings& recordings, const DisplayState& state) {
    const int slot = recordings.ginx;
    if (slot < 0 || slot >= Recordings::slotCount || !recordings.isOpen(slot))
        throw fault::subscript();
    const FileFacts& info = recordings.info(slot);
    const ShownRange range = shownRange(recordings, state, slot);
    const TableLayout& layout = layoutOf(info.modeLetter);
    const int intervalsPerLine = layout.perLine / valuesPerInterval(info.modeLetter);
    const int minutesPerLine = modeRow(info.modeLetter).minutes * intervalsPerLine;
    tableText(recordings.gTable, present(recordings, slot, range), layout, !info.low,
              {timeOf(info, range.first), minutesPerLine});
    if (!state.spanApplied)
        recordings.gdataend = info.count - 1;
    return std::string(layout.heading);
}

} // namespace tally
