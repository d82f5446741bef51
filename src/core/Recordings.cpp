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
    ginx = noFile;
}

ReadingTime timeOf(const FileFacts& info, std::int64_t index) {
    const std::int64_t k = valuesPerInterval(info.modeLetter);
    // Division that rounds down also before reading 0, so that a triple shares its time there too.
    const std::int64_t intervals = index >= 0 ? index / k : -((-index + k - 1) / k);
    return info.start + modeRow(info.modeLetter).minutes * intervals;
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
