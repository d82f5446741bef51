// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KnownDownloads.h"

#include "core/Text1252.h"
#include "link/Rescue.h"

namespace tally {

namespace {

constexpr std::size_t named = 3; // receptions that are named one by one

std::string fate(JournalState state) {
    switch (state) {
    case JournalState::saved:
        return "saved";
    case JournalState::refused:
        return "refused";
    case JournalState::dropped:
        return "dropped";
    case JournalState::interrupted:
        return "interrupted, NOT SAVED YET";
    case JournalState::receiving:
    case JournalState::received:
    case JournalState::accepted:
        break;
    }
    return "NOT SAVED YET";
}

std::string describe(const JournalEntry& entry) {
    const std::string serial = entry.serial.empty() ? "without number" : toUtf8(entry.serial);
    return serial + " (" + headerTime(entry.header.pcTime) + "): " + fate(entry.state);
}

} // namespace

std::string knownDownloads(const std::vector<JournalEntry>& newestFirst) {
    std::string line;
    std::size_t count = 0;
    std::size_t moreUnsaved = 0;
    for (const JournalEntry& entry : newestFirst) {
        if (entry.bytes == 0)
            continue; // a session that was left before anything came
        if (count++ < named)
            line += (line.empty() ? "" : ";  ") + describe(entry);
        else if (isUnsaved(entry.state))
            ++moreUnsaved;
    }
    if (line.empty())
        return "No downloads are known on this computer.";
    if (moreUnsaved > 0)
        line += ";  " + std::to_string(moreUnsaved) + " more NOT SAVED YET";
    return "Last downloads:  " + line;
}

std::string unsavedDownloadsOf(const std::string& serial, const Journal& journal) {
    std::string lines;
    if (serial.find_first_not_of(' ') == std::string::npos)
        return lines;
    for (const JournalEntry& entry : unsavedReceptions(journal))
        if (entry.serial == serial)
            lines += receptionText(entry) + "\r\n";
    return lines.empty() ? lines : "A download of this instrument is not saved yet:\r\n" + lines;
}

} // namespace tally
