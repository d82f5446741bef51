// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotTitle.h"

#include "core/ModeTable.h"
#include "core/Numbers.h"

#include <array>
#include <string_view>

namespace tally {

namespace {

constexpr std::string_view newLine = "\r\n";
constexpr std::string_view severalFilesData = "         File Data:  N/A              ";
constexpr std::array<std::string_view, 4> noteLabels = {
    "Location: ", "Circuit:     ", "Name:     ", "Other:      "};

std::string fileData(const Recordings& recordings) {
    if (recordings.openCount() > 1)
        return std::string(severalFilesData);
    const FileFacts& info = recordings.info(0);
    return "        File Data:   Max  " + plainTenths(info.largest) + info.unit() + "  Min  " +
           plainTenths(info.smallest) + info.unit();
}

std::string modeLine(char letter) {
    const ModeRow& mode = modeRow(letter);
    return std::string("Mode:  ") + (isMinMaxAvg(letter) ? "Min/Max/Avg " : "Average") + ";     " +
           std::string(mode.whenFull) + ";    " + std::to_string(mode.minutes) + " min interval      ";
}

} // namespace

std::string titleBlock(const Recordings& recordings, const std::optional<Range>& selected,
                       const Clock& clock) {
    std::string block = fileData(recordings);
    block.append(newLine).append(modeLine(recordings.info(0).modeLetter));
    block.append(newLine).append("Date printed   ").append(formatTime(clock.localTime(), "%b-%d-%y"));
    for (std::size_t slot = 0; slot < Recordings::slotCount; ++slot) {
        if (!recordings.isOpen(static_cast<int>(slot)))
            continue;
        for (std::size_t i = 0; i < noteLabels.size(); ++i)
            block.append(newLine).append(noteLabels[i]).append(recordings.gNotes[slot][i]);
    }
    if (selected) {
        const FileFacts& info = recordings.info(0);
        block.append(newLine).append("Selected:   ").append(screenTime(timeOf(info, selected->first)));
        block.append("   to   ").append(screenTime(timeOf(info, selected->last)));
    }
    return block;
}

} // namespace tally
