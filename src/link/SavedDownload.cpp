// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/SavedDownload.h"

#include "core/DataText.h"
#include "core/Header.h"
#include "core/ReadingTime.h"
#include "core/RecentFiles.h"
#include "core/Text1252.h"
#include "link/ReceivedText.h"

#include <algorithm>
#include <variant>

namespace tally {

namespace {

const char* const section = "Downloads";
const char* const folderKey = "folder";
const char* const ending = ".dat";

bool isPlain(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '_';
}

// A serial number as part of a file name; nothing for a blank one.
std::string nameOf(std::string_view serial) {
    const std::size_t first = serial.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    std::string name(serial.substr(first, serial.find_last_not_of(' ') - first + 1));
    for (char& c : name)
        c = isPlain(c) ? c : '_';
    return name;
}

} // namespace

std::string proposedName(std::string_view gText) {
    const std::string header = headerOf(gText);
    std::string name = nameOf(headerField(header, column::serial));
    if (const auto stopped = timeOf(header))
        name += (name.empty() ? "" : "-") + formatTime(*stopped, "%Y-%m-%d");
    return (name.empty() ? "recording" : name) + ending;
}

FileQuestion saveQuestion(std::string_view gText, const Settings& settings, const std::string& defaultFolder,
                          std::string_view filter) {
    const std::string last = settings.get(section, folderKey);
    return {.save = true,
            .filter = std::string(filter),
            .folder = last.empty() ? defaultFolder : last,
            .name = proposedName(gText)};
}

std::string savedText(std::string_view gText, const std::string& path) {
    const std::string header = headerOf(gText);
    const std::string serial = toUtf8(headerField(header, column::serial));
    std::string text = "Saved in " + path + (serial.empty() ? "" : ": instrument " + serial);
    const auto read = readDataText(gText);
    if (read)
        text +=
            ", " + std::to_string(read->facts.count) + (read->facts.count == 1 ? " reading" : " readings");
    return text + ".";
}

void noteSaved(Settings& settings, const std::string& path) {
    const std::size_t end = path.find_last_of("/\\");
    if (end != std::string::npos)
        settings.set(section, folderKey, path.substr(0, std::max<std::size_t>(end, 1)));
    addRecentFile(settings, path);
}

} // namespace tally
