// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printinfo.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/ShownRange.h"
#include "view/Summary.h"

namespace tally {

namespace {

constexpr std::size_t modeField = 15;
constexpr std::size_t valuesField = 29;

std::string selectedLines(const Recordings& recordings, const DisplayState& state, int slot) {
    const FileFacts& info = recordings.info(slot);
    const ShownRange range = shownRange(recordings, state, slot);
    return "           Selected:       Start  " + screenTime(timeOf(info, range.first)) +
           "                   Finish  " + screenTime(timeOf(info, range.last)) + "\r\n" +
           "                                   Min      " + Format(state.extremeMin / 10.0, "###0.0") +
           "           " + "                                 max       " +
           Format(state.extremeMax / 10.0, "###0.0") + "\r\n";
}

} // namespace

std::string Printinfo(const Recordings& recordings, const DisplayState& state) {
    const int slot = recordings.ginx;
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
    if (!state.energyText.empty())
        text += "                   Total Energy In Displayed Area  " + state.energyText + "\r\n";
    if (state.spanApplied)
        text += selectedLines(recordings, state, slot);
    return text + noteLines(recordings, slot);
}

} // namespace tally
