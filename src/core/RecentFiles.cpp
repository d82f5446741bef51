// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RecentFiles.h"

namespace tally {

namespace {

constexpr int entries = 4;
const std::string section = "Settings";

std::string keyOf(int entry) {
    return "mrufile" + std::to_string(entry);
}

} // namespace

std::array<std::string, 4> recentFiles(const Settings& settings) {
    std::array<std::string, 4> paths;
    for (int entry = 1; entry <= entries; ++entry)
        paths[static_cast<std::size_t>(entry - 1)] = settings.get(section, keyOf(entry));
    return paths;
}

void addRecentFile(Settings& settings, const std::string& path) {
    for (int entry = entries; entry > 1; --entry)
        settings.set(section, keyOf(entry), settings.get(section, keyOf(entry - 1)));
    settings.set(section, keyOf(1), path);
}

} // namespace tally
