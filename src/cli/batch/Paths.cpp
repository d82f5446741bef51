// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tally::cli {

namespace {

namespace fs = std::filesystem;

constexpr const char* dataEnding = ".dat";

void addFolder(const fs::path& folder, std::vector<Listed>& list) {
    std::vector<fs::directory_entry> entries;
    std::error_code error;
    fs::directory_iterator at(folder, error);
    while (!error && at != fs::directory_iterator()) {
        entries.push_back(*at);
        at.increment(error);
    }
    if (error) {
        list.push_back({folder.string(), error.message()});
        return;
    }
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
        return a.path().filename().string() < b.path().filename().string();
    });
    for (const fs::directory_entry& entry : entries) {
        std::error_code ignored;
        if (!entry.is_symlink(ignored) && entry.is_directory(ignored))
            addFolder(entry.path(), list);
        else if (entry.path().string().ends_with(dataEnding) && entry.is_regular_file(ignored))
            list.push_back({entry.path().string()});
    }
}

void addPath(const std::string& path, std::vector<Listed>& list) {
    std::error_code ignored;
    if (fs::is_directory(path, ignored))
        addFolder(path, list);
    else
        list.push_back({path});
}

} // namespace

std::vector<Listed> listPaths(const std::vector<std::string>& paths, std::istream& names) {
    std::vector<Listed> list;
    for (const std::string& path : paths) {
        if (path != "-") {
            addPath(path, list);
            continue;
        }
        for (std::string line; std::getline(names, line);) {
            if (line.ends_with('\r'))
                line.pop_back();
            if (!line.empty())
                addPath(line, list);
        }
    }
    return list;
}

} // namespace tally::cli
