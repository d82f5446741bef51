// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ArchiveFiles.h"

#include "archive/Verify.h"
#include "cli/ArchivePlace.h"
#include "core/Fault.h"
#include "core/NotesFile.h"

namespace tally::cli {

namespace {

constexpr std::string_view prefix = "archive:";
constexpr const char* extension = ".dat";

} // namespace

bool ArchiveFiles::exists(const std::string& path) const {
    return kept_.contains(path) || SafeFile::exists(path);
}

bool ArchiveFiles::same(const std::string& path, const std::string& other) const {
    return kept_.contains(path) || kept_.contains(other) ? path == other : SafeFile::same(path, other);
}

std::string ArchiveFiles::read(const std::string& path, std::uint64_t maximum) const {
    const auto kept = kept_.find(path);
    if (kept == kept_.end())
        return SafeFile::read(path, maximum);
    return kept->second.substr(0, maximum);
}

void ArchiveFiles::write(const std::string& path, const std::string& bytes) {
    // Neither a recording nor its notes; a path that is its own notes path is one of notes.
    if (kept_.contains(path) || (isArchived(path) && path == notesPath(path)))
        throw fault::permissionDenied();
    SafeFile::write(path, bytes);
}

bool isArchived(const std::string& typed) {
    return typed.substr(0, prefix.size()) == prefix;
}

std::string fetchArchived(Context& context, const std::string& typed) {
    const auto store = openStore(context);
    const archive::Entry entry = entryNamed(*store, typed.substr(prefix.size()));
    auto given = archive::giveBack(*store, entry, archiveTools());
    if (!given)
        throw Refused(onLines(given.error()));
    const std::string path = std::string(prefix) + entry.name() + extension;
    context.archived().put(path, std::move(given->bytes));
    if (given->notesFile)
        context.archived().put(notesPath(path), *std::move(given->notesFile));
    return path;
}

} // namespace tally::cli
