// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Printpwrinfo.h"

#include "core/Fault.h"
#include "core/Numbers.h"
#include "view/Summary.h"

namespace tally {

namespace {

// Kilowatts of a stored extreme (tenths of amps), in single precision like the readings.
std::string kilowatts(std::int16_t tenths, const PowerBasis& basis) {
    const auto volts = static_cast<float>(basis.volts());
    return Format(static_cast<float>(tenths) / 10.0F * basis.factor * volts / 1000.0F, "###0.0");
}

std::string allFilesLine(const TimeOfFiles& all) {
    return "All Files:  Start:  " + screenTime(all.start) + "                End:  " + screenTime(all.end) +
           "\r\n";
}

std::string selectedLines(const Recordings& recordings, const Range& range, const std::string& min,
                          const std::string& max) {
    const FileFacts& info = recordings.info(0);
    return "Selected:       Start  " + screenTime(timeOf(info, range.first)) + "                Finish  " +
           screenTime(timeOf(info, range.last)) + "\r\n" + " Min " + min +
           "                                      max  " + max + "\r\n";
}

} // namespace

std::string Printpwrinfo(const Recordings& recordings, const Power& power, bool selected,
                         const TimeOfFiles& all) {
    if (!recordings.isOpen(0))
        throw fault::subscript();
    const std::string min = kilowatts(power.extremeMin, power.basis);
    const std::string max = kilowatts(power.extremeMax, power.basis);

    std::string text = leftIn("Average", 15) + "  Values" + "\r\n";
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        text += fileLine(recordings.info(slot));
    text += "Mode:  " + modeFacts(recordings.info(0)) + "\r\n";
    text += allFilesLine(all);
    text += "         Min: " + min + " KW" + "                                      Max: " + max + " KW    " +
            "\r\n";
    text += "Line Voltage: " + power.basis.vline + "   " +
            "   Total Energy In Displayed Area: " + power.energyText + "   " +
            "  Power Factor: " + plain(power.basis.factor) + "\r\n";
    if (selected)
        text += selectedLines(recordings, power.range, min, max);
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        text += noteLines(recordings, slot);
    return text;
}

} // namespace tally
