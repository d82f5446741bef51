// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OutputPlace.h"

#include "core/Fault.h"

#include <filesystem>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace tally {

namespace {

namespace fs = std::filesystem;

bool mayWrite(const fs::path& path) {
#ifdef _WIN32
    std::error_code none;
    return (fs::status(path, none).permissions() & fs::perms::owner_write) != fs::perms::none;
#else
    return access(path.c_str(), W_OK) == 0;
#endif
}

} // namespace

void checkOutputPlace(const std::string& path, std::uint64_t bytes) {
    std::error_code none;
    fs::path file(path);
    // A link is followed: what it leads to is replaced.
    if (const fs::path target = fs::canonical(file, none); !none)
        file = target;
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, none))
        throw fault::pathNotFound();
    if (fs::is_directory(file, none) || !file.has_filename())
        throw fault::pathFileAccess();
    // It is written beside the old one, which is then replaced.
    if (!mayWrite(folder) || (fs::exists(file, none) && !mayWrite(file)))
        throw fault::permissionDenied();
    const fs::space_info room = fs::space(folder, none);
    if (!none && room.available < bytes)
        throw fault::diskFull();
}

} // namespace tally
