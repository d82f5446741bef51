// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/FoundFiles.h"

#include "core/Fileopen.h"

#include <algorithm>
#include <filesystem>

namespace tally {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view dataEnding = ".dat";

struct Walk {
    const std::function<bool(archive::FoundFile&&)>& receive;
    const std::function<void(const std::string& path, const std::string& reason)>& failed;
    bool stopped = false;

    void file(const fs::path& path, std::vector<std::string> names) {
        names.push_back(path.filename().string());
        stopped = stopped || !receive({path.string(), std::move(names)});
    }

    void folder(const fs::path& path, std::vector<std::string> names) {
        names.push_back(path.filename().string());
        std::error_code error;
        std::vector<fs::directory_entry> entries;
        for (fs::directory_iterator each(path, error); !error && each != fs::directory_iterator();
             each.increment(error))
            entries.push_back(*each);
        if (error)
            failed(path.string(), "The folder cannot be read");
        std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
            return a.path().filename().native() < b.path().filename().native();
        });
        for (const fs::directory_entry& entry : entries) {
            if (stopped)
                return;
            std::error_code ignored;
            const bool link = entry.is_symlink(ignored);
            if (entry.is_directory(ignored) && !link)
                folder(entry.path(), names);
            else if (entry.is_regular_file(ignored) && entry.path().native().ends_with(dataEnding))
                file(entry.path(), names);
        }
    }
};

} // namespace

void eachFile(const std::string& path, const std::function<bool(archive::FoundFile&&)>& receive,
              const std::function<void(const std::string& path, const std::string& reason)>& failed) {
    std::error_code error;
    fs::path full = fs::absolute(path, error).lexically_normal();
    if (!full.has_filename())
        full = full.parent_path();
    Walk walk{receive, failed};
    if (path.empty() || error || !fs::exists(full, error))
        failed(path, fileNotFoundText);
    else if (fs::is_directory(full, error))
        walk.folder(full, {});
    else if (fs::is_regular_file(full, error))
        walk.file(full, {full.parent_path().filename().string()});
    else
        failed(path, badFileText);
}

} // namespace tally
