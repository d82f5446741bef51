// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ExportPlace.h"

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

std::string exportPath(const Recordings& recordings, int slot, const std::string& name,
                       const ExportPlace& place) {
    return joinPath(place.directory.empty() ? folderOf(recordings.info(slot).path) : place.directory, name);
}

Exported writeExport(Files& files, const std::string& path, const std::string& bytes, std::string_view said) {
    const bool replaced = files.exists(path);
    files.write(path, bytes);
    return {path, path + std::string(said), replaced};
}

Expected<void> checkNotOpen(const Recordings& recordings, const std::string& path, const Files& files) {
    for (int slot = 0; slot < Recordings::slotCount; ++slot)
        if (recordings.isOpen(slot) && files.same(recordings.info(slot).path, path))
            return refuse(std::string(exportOverData), path);
    return {};
}

} // namespace tally
