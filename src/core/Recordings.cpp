// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Recordings.h"

#include "core/Fault.h"
#include "core/ModeTable.h"

namespace tally {

const FileFacts& Recordings::info(int slot) const {
    if (slot < 0 || slot > slotCount)
        throw fault::subscript();
    return gInfo[static_cast<std::size_t>(slot)];
}

int Recordings::openCount() const {
    int open = 0;
    for (int slot = 0; slot < slotCount; ++slot)
        open += isOpen(slot) ? 1 : 0;
    return open;
}

int Recordings::freeSlot() const {
    for (int slot = 0; slot < slotCount; ++slot)
        if (!isOpen(slot))
            return slot;
    return -1;
}

std::int16_t Recordings::reading(int slot, int index) const {
    if (slot < 0 || slot >= slotCount || index < 0 || index > lastIndex)
        throw fault::subscript();
    const auto& readings = gReadings[static_cast<std::size_t>(slot)];
    const auto at = static_cast<std::size_t>(index);
    return at < readings.size() ? readings[at] : std::int16_t{0};
}

void Recordings::closeAll() {
    gInfo = {};
    gReadings = {};
    gNotes = {};
    forcedEdits = {};
    written = {};
    ginx = noFile;
}

std::string fileNameOf(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

int intervalsOf(const FileFacts& info) {
    const int k = valuesPerInterval(info.modeLetter);
    return (info.count + k - 1) / k;
}

ReadingTime timeOf(const FileFacts& info, std::int64_t index) {
    const std::int64_t k = valuesPerInterval(info.modeLetter);
    const std::int64_t newer = info.count - 1 - index;
    // Division that rounds down also after the newest reading, so that a triple shares its time there too.
    const std::int64_t back = newer >= 0 ? newer / k : -((-newer + k - 1) / k);
    return info.start + modeRow(info.modeLetter).minutes * (intervalsOf(info) - 1 - back);
}

void CalcDate(Recordings& recordings) {
    recordings.gText.clear();
    recordings.gText = screenTime(timeOf(recordings.info(recordings.ginx), recordings.gDateX));
}

void SelectFile(Recordings& recordings, SlotChooser& chooser, int pendingCommand) {
    if (!recordings.isOpen(0)) {
        recordings.ginx = Recordings::noFile;
    } else if (!recordings.isOpen(1)) {
        recordings.ginx = 0;
    } else {
        recordings.ginx = 0;
        recordings.ginx = chooser.choose(recordings, pendingCommand);
    }
}

} // namespace tally
