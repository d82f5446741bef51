// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printpwrinfo.h"

#include "core/Fault.h"
#include "core/Numbers.h"
#include "view/Power.h"
#include "view/ShownRange.h"
#include "view/Summary.h"

#include <algorithm>

namespace tally {

namespace {

// Kilowatts of a stored extreme (tenths of amps), in single precision like the readings.
std::string kilowatts(std::int16_t tenths, float factor, float volts) {
    return Format(static_cast<float>(tenths) / 10.0F * factor * volts / 1000.0F, "###0.0");
}

// The oldest and the newest time of all open files.
std::string allFilesLine(const Recordings& recordings) {
    ReadingTime start = recordings.info(0).start;
    ReadingTime end = start;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const FileFacts& info = recordings.info(slot);
        start = std::min(start, info.start);
        end = std::max(end, timeOf(info, info.count - 1));
    }
    return "All Files:  Start:  " + screenTime(start) + "                End:  " + screenTime(end) + "\r\n";
}

std::string selectedLines(const Recordings& recordings, const DisplayState& state, const std::string& min,
                          const std::string& max) {
    const FileFacts& info = recordings.info(0);
    const int last = state.powerFirst + static_cast<int>(state.power.size()) - 1;
    return "Selected:       Start  " + screenTime(timeOf(info, state.powerFirst)) +
           "                Finish  " + screenTime(timeOf(info, last)) + "\r\n" + " Min " + min +
           "                                      max  " + max + "\r\n";
}

} // namespace

std::string Printpwrinfo(const Recordings& recordings, const DisplayState& state, std::string_view vline) {
    if (!recordings.isOpen(0))
        throw fault::subscript();
    const float factor = powerFactorOf(recordings);
    const auto volts = static_cast<float>(voltsOf(vline));
    const std::string min = kilowatts(state.powerExtremeMin, factor, volts);
    const std::string max = kilowatts(state.powerExtremeMax, factor, volts);

    std::string text = leftIn("Average", 15) + "  Values" + "\r\n";
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        text += fileLine(recordings.info(slot));
    text += "Mode:  " + modeFacts(recordings.info(0)) + "\r\n";
    text += allFilesLine(recordings);
    text += "         Min: " + min + " KW" + "                                      Max: " + max + " KW    " +
            "\r\n";
    text += "Line Voltage: " + std::string(vline) + "   " +
            "   Total Energy In Displayed Area: " + state.energyText + "   " +
            "  Power Factor: " + plain(factor) + "\r\n";
    if (state.spanApplied)
        text += selectedLines(recordings, state, min, max);
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        text += noteLines(recordings, slot);
    return text;
}

} // namespace tally
