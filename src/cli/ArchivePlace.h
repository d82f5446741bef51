// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"

#include "archive/ArchiveStore.h"
#include "archive/Place.h"

#include <memory>
#include <string>

namespace tally::cli {

// Adds --db: which archive the call speaks of; without it the one that TALLYLINE_ARCHIVE names, else that of
// this user.
void addArchiveOption(CLI::App& command);

// The archive of this call. Throws WrongUsage for what is no place.
archive::Place archivePlace();
archive::Place archivePlace(const std::string& url);

// Opens an archive. Throws Refused with why it cannot be opened.
std::unique_ptr<archive::ArchiveStore> openStore(Context& context, const archive::Place& place);
std::unique_ptr<archive::ArchiveStore> openStore(Context& context);

const archive::ArchiveTools& archiveTools();

// The recording that an ID or its beginning names, with sources. Throws Refused for none or several.
archive::Entry entryNamed(archive::ArchiveStore& store, const std::string& name);

} // namespace tally::cli
