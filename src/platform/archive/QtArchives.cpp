// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/QtArchives.h"

#include "platform/Folders.h"
#include "platform/archive/FoundFiles.h"
#include "platform/archive/OpenArchive.h"

#include <QtGlobal>

namespace tally {

archive::Opened QtArchives::open(const archive::Place& place) const {
    return openArchive(place, tools_);
}

Expected<void> QtArchives::make(const archive::Place& place) const {
    // The user's own data folder may not be there yet; a folder that was typed must be.
    if (place.text() == defaultPlace().text())
        folders::make(folders::data());
    return initArchive(place);
}

archive::Place QtArchives::usual() const {
    const auto named = archive::parsePlace(qgetenv("TALLYLINE_ARCHIVE").toStdString());
    return named ? *named : defaultPlace();
}

void QtArchives::eachFile(
    const std::string& path, const std::function<bool(archive::FoundFile&&)>& receive,
    const std::function<void(const std::string& path, const std::string& reason)>& failed) const {
    tally::eachFile(path, receive, failed);
}

} // namespace tally
