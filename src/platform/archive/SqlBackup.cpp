// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/CopyArchive.h"
#include "platform/archive/OpenArchive.h"
#include "platform/archive/PartFile.h"
#include "platform/archive/SqlArchive.h"

namespace tally {

using archive::Engine;
using archive::Place;
using archive::StoreFault;
using archive::StoreTrouble;

namespace {

void copyInto(archive::ArchiveStore& from, const archive::ArchiveTools& tools, const Place& place) {
    const auto made = initArchive(place);
    if (!made)
        throw StoreFault(StoreTrouble::other, made.error().message());
    const auto target = openArchive(place, tools);
    if (!target)
        throw StoreFault(StoreTrouble::other, target.error().message());
    archive::copyArchive(from, **target);
}

} // namespace

void SqlArchive::backup(const std::string& path) {
    PartFile file(path);
    Place place;
    place.engine = Engine::sqlite;
    place.path = file.name();
    // Copying the file itself while somebody writes would give a damaged one.
    if (connection_->engine() == Engine::sqlite)
        connection_->run("VACUUM INTO ?", {file.name()}).finish();
    else
        copyInto(*this, tools_, place);
    file.finish();
}

} // namespace tally
