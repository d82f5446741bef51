// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ExportDesk.h"

namespace tally {

namespace {

#ifdef _WIN32
constexpr char separator = '\\';
constexpr std::string_view separators = "/\\";
#else
constexpr char separator = '/';
constexpr std::string_view separators = "/";
#endif

// The folder part of a path, empty for none; a path in the root keeps its separator.
std::string folderOf(const std::string& path) {
    const auto last = path.find_last_of(separators);
    return last == std::string::npos ? std::string() : path.substr(0, last == 0 ? 1 : last);
}

} // namespace

std::string joinPath(const std::string& folder, const std::string& name) {
    if (folder.empty() || separators.find(folder.back()) != std::string_view::npos)
        return folder + name;
    return folder + separator + name;
}

std::string exportPath(const ExportDesk& desk, int slot, const std::string& name) {
    const std::string folder =
        desk.directory.empty() ? folderOf(desk.recordings.info(slot).path) : desk.directory;
    return joinPath(folder, name);
}

bool refuseOwnFile(const ExportDesk& desk, const std::string& path) {
    for (int slot = 0; slot < Recordings::slotCount; ++slot) {
        if (desk.recordings.isOpen(slot) && desk.files.same(desk.recordings.info(slot).path, path)) {
            desk.prompt.tell(std::string(exportOverData));
            return true;
        }
    }
    return false;
}

} // namespace tally
