// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FolderWatch.h"

#include <system_error>
#include <utility>

namespace tally::cli {

FolderWatch::FolderWatch(std::vector<std::string> paths) : paths_(std::move(paths)) {
    settled();
    for (auto& [path, look] : looks_)
        look.known = true;
}

std::vector<archive::FoundFile> FolderWatch::settled() {
    std::vector<archive::FoundFile> files;
    const auto take = [&](archive::FoundFile&& file) {
        std::error_code error;
        Look now;
        now.size = std::filesystem::file_size(file.path, error);
        if (!error)
            now.written = std::filesystem::last_write_time(file.path, error);
        if (error)
            return true;
        const auto [place, isNew] = looks_.try_emplace(file.path, now);
        Look& before = place->second;
        if (!isNew && before.sameAs(now) && !before.known) {
            before.known = true;
            files.push_back(std::move(file));
        } else if (!before.sameAs(now)) {
            before = now;
        }
        return true;
    };
    for (const std::string& path : paths_)
        eachFile(path, take, [](const std::string&, const std::string&) {});
    return files;
}

} // namespace tally::cli
