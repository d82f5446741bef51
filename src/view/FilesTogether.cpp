// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FilesTogether.h"

#include "core/TimeAxis.h"
#include "view/Range.h"

#include <algorithm>

namespace tally {

namespace {

const char* unitWord(const FileFacts& info) {
    return info.unit() == 'V' ? "volts" : "amps";
}

} // namespace

std::string openNames(const Recordings& recordings) {
    std::string names;
    for (int slot = 0; slot < Recordings::slotCount; ++slot)
        if (recordings.isOpen(slot))
            names += (names.empty() ? "" : ", ") + fileNameOf(recordings.info(slot).path);
    return names;
}

TimeOfFiles timeOfFiles(const Recordings& recordings) {
    TimeOfFiles time{recordings.info(0).start, recordings.info(0).start};
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const FileFacts& info = recordings.info(slot);
        time.start = std::min(time.start, info.start);
        time.end = std::max(time.end, timeOf(info, info.count - 1));
    }
    return time;
}

std::string shorterFiles(const Recordings& recordings) {
    int longest = 0;
    for (int slot = 0; slot < Recordings::slotCount; ++slot)
        longest = std::max(longest, recordings.info(slot).count);
    std::string text;
    for (int slot = 0; slot < Recordings::slotCount; ++slot) {
        const FileFacts& info = recordings.info(slot);
        if (recordings.isOpen(slot) && info.count < longest)
            text += (text.empty() ? "Shorter: " : ", ") + fileNameOf(info.path) + " (" +
                    std::to_string(info.count) + " of " + std::to_string(longest) + " readings)";
    }
    return text;
}

bool startsDiffer(const Recordings& recordings) {
    const FileFacts& first = recordings.info(0);
    for (int slot = 1; slot < recordings.openCount(); ++slot) {
        const FileFacts& info = recordings.info(slot);
        if (timeOf(info, firstWhole(info)) != timeOf(first, firstWhole(first)))
            return true;
    }
    return false;
}

std::vector<std::string> togetherWarnings(const Recordings& recordings) {
    std::vector<std::string> warnings;
    const FileFacts& first = recordings.info(0);
    const std::string firstName = fileNameOf(first.path);
    for (int slot = 1; slot < recordings.openCount(); ++slot) {
        const FileFacts& info = recordings.info(slot);
        const std::string name = fileNameOf(info.path);
        // The first whole intervals stand beside each other.
        const ReadingTime start = timeOf(info, firstWhole(info));
        const std::string apart =
            startsApart(name, firstName, start.minutes - timeOf(first, firstWhole(first)).minutes);
        if (!apart.empty())
            warnings.push_back(apart);
        if (info.unit() != first.unit())
            warnings.push_back("Different units: " + firstName + " is in " + unitWord(first) + ", " + name +
                               " in " + unitWord(info));
    }
    return warnings;
}

std::string togetherLine(const Recordings& recordings) {
    std::string line;
    for (const std::string& warning : togetherWarnings(recordings))
        line += (line.empty() ? "" : "; ") + warning;
    return line;
}

std::string togetherRemark(const Recordings& recordings) {
    const std::string shorter = shorterFiles(recordings);
    const std::string line = togetherLine(recordings);
    return shorter + (shorter.empty() || line.empty() ? "" : "; ") + line;
}

} // namespace tally
