// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printinfo.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/Summary.h"

#include <algorithm>

namespace tally {

namespace {

constexpr std::size_t modeField = 15;
constexpr std::size_t valuesField = 29;

std::string selectedLines(const FileFacts& info, const SelectedSpan& selected) {
    return "           Selected:       Start  " + screenTime(timeOf(info, selected.range.first)) +
           "                   Finish  " + screenTime(timeOf(info, selected.range.last)) + "\r\n" +
           "                                   Min      " +
           Format(selected.extremes.smallest / 10.0, "###0.0") + "           " +
           "                                 max       " +
           Format(selected.extremes.largest / 10.0, "###0.0") + "\r\n";
}

} // namespace

// The extremes are those of the displayed range over all files, as the plot shows them.
std::string Printinfo(const Recordings& recordings, int slot, const std::optional<Range>& selected,
                      const std::string& energy) {
    std::optional<SelectedSpan> span;
    if (selected && slot >= 0 && slot < Recordings::slotCount && recordings.isOpen(slot)) {
        span = {sameIntervals(recordings, *selected, slot), extremesOf(recordings, *selected)};
        span->range.last = std::min(span->range.last, recordings.info(slot).count - 1);
    }
    return summaryText(recordings, slot, span, energy);
}

std::string summaryText(const Recordings& recordings, int slot, const std::optional<SelectedSpan>& selected,
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
        text += selectedLines(info, *selected);
    return text + noteLines(recordings, slot);
}

} // namespace tally
