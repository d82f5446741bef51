// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printinfo.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/Range.h"
#include "view/Summary.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::size_t modeField = 15;
constexpr std::size_t valuesField = 29;

// The extremes are those of the displayed range over all files, as the plot shows them.
std::string selectedLines(const Recordings& recordings, const Range& selected, int slot) {
    const FileFacts& info = recordings.info(slot);
    Range range = sameIntervals(recordings, selected, slot);
    range.last = std::min(range.last, info.count - 1);
    const Extremes extremes = extremesOf(recordings, selected);
    return "           Selected:       Start  " + screenTime(timeOf(info, range.first)) +
           "                   Finish  " + screenTime(timeOf(info, range.last)) + "\r\n" +
           "                                   Min      " + Format(extremes.smallest / 10.0, "###0.0") +
           "           " + "                                 max       " +
           Format(extremes.largest / 10.0, "###0.0") + "\r\n";
}

} // namespace

std::string Printinfo(const Recordings& recordings, int slot, const std::optional<Range>& selected,
                      const std::string& energy) {
    if (slot < 0 || slot >= Recordings::slotCount || !recordings.isOpen(slot))
        throw fault::subscript();
    const FileFacts& info = recordings.info(slot);
    std::string text = leftIn(isMinMaxAvg(info.modeLetter) ? "Min/Max/Avg " : "Average", modeField) +
                       leftIn("  Values", valuesField) + "\r\n";
    text += fileLine(info);
    text += "     Mode:  " + modeFacts(info) + "\r\n";
    text += "    Entire File:  Start:  " + screenTime(info.start) +
            "    End:  " + screenTime(timeOf(info, info.count - 1)) + "\r\n";
    text += "                       Min: " + plainTenths(info.smallest) + "    " +
            " Max: " + plainTenths(info.largest) + "\r\n";
    if (!energy.empty())
        text += "                   Total Energy In Displayed Area  " + energy + "\r\n";
    if (selected)
        text += selectedLines(recordings, *selected, slot);
    return text + noteLines(recordings, slot);
}

} // namespace tally
