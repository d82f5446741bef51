// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Start.h"

#include "app/forms/StartPage.h"
#include "core/DataText.h"
#include "core/Fault.h"
#include "core/Header.h"
#include "core/RecentFiles.h"
#include "core/Text1252.h"
#include "core/forms/Words.h"
#include "link/Rescue.h"

#include <set>

namespace tally {

namespace {

constexpr std::uint64_t headerReach = 8192; // bytes that a header ends in

// "feeder.dat  -  4127, Mar 31, 24"; the name alone of a file that is no recording.
std::string describe(const std::string& path, const Files& files) {
    std::string text = fileNameOf(path);
    const auto header = findDataHeader(files.read(path, headerReach));
    if (!header)
        return text;
    text += "  -  " + toUtf8(headerField(header->text, column::serial));
    if (const auto time = timeOf(header->text))
        text += ", " + formatTime(*time, "%b %d, %y");
    return text;
}

} // namespace

void TLY_Start::refresh() {
    std::vector<std::pair<QString, QString>> recent;
    std::set<std::string> seen;
    for (const std::string& path : recentFiles(services_.settings)) {
        if (path.empty() || !seen.insert(path).second)
            continue;
        try {
            recent.emplace_back(words(describe(path, services_.files)), words(path));
        } catch (const Fault&) {
            // A stick that is not plugged in: the menu keeps its path.
        }
    }
    page_.setRecent(recent);
    QStringList unsaved;
    for (const JournalEntry& entry : unsavedReceptions(services_.session.journal))
        unsaved.append(words(receptionText(entry)));
    page_.setUnsaved(unsaved);
}

} // namespace tally
