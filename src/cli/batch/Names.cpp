// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch/Names.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

namespace tally::cli {

namespace {

namespace fs = std::filesystem;
using Parts = std::vector<std::string>;

Parts partsOf(const std::string& path) {
    Parts parts;
    std::error_code ignored;
    for (const fs::path& part : fs::absolute(path, ignored).lexically_normal())
        parts.push_back(part.string());
    return parts;
}

// How many parts at the beginning are folders of every path.
std::size_t commonFolders(const std::vector<Parts>& all) {
    std::size_t common = all.empty() ? 0 : all.front().size() - 1;
    for (const Parts& parts : all) {
        common = std::min(common, parts.size() - 1);
        const auto [differs, other] = std::mismatch(
            parts.begin(), parts.begin() + static_cast<std::ptrdiff_t>(common), all.front().begin());
        common = static_cast<std::size_t>(differs - parts.begin());
    }
    return common;
}

std::string joined(const Parts& parts, std::size_t from) {
    std::string name = parts[from];
    for (std::size_t i = from + 1; i < parts.size(); ++i)
        name += "-" + parts[i];
    return name;
}

} // namespace

std::vector<std::string> resultNames(const std::vector<std::string>& paths, const std::string& folder,
                                     const std::string& ending) {
    std::vector<Parts> all;
    all.reserve(paths.size());
    for (const std::string& path : paths)
        all.push_back(partsOf(path.empty() ? "-" : path));
    const std::size_t common = commonFolders(all);
    std::set<std::string> taken;
    std::vector<std::string> names;
    names.reserve(paths.size());
    for (const Parts& parts : all) {
        const fs::path name(joined(parts, common));
        const std::string end = ending.empty() ? name.extension().string() : "." + ending;
        std::string unique = name.stem().string() + end;
        for (int number = 2; !taken.insert(unique).second; ++number)
            unique = name.stem().string() + " (" + std::to_string(number) + ")" + end;
        names.push_back((fs::path(folder) / unique).string());
    }
    return names;
}

} // namespace tally::cli
