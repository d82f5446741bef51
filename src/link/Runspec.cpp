// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/Runspec.h"

#include <array>

namespace tally {

namespace {

struct KnownLine {
    std::string_view text;
    bool RunFlags::*flag;
    bool value;
};

// Only the change away from the default can be written.
constexpr std::array<KnownLine, 10> knownLines = {
    {{"enableChange999sTo000=False", &RunFlags::enableChange999sTo000, false},
     {"enable999CountReport=True", &RunFlags::enable999CountReport, true},
     {"enableErrorReport=False", &RunFlags::enableErrorReport, false},
     {"enableAddedReading=True", &RunFlags::enableAddedReading, true},
     {"enableMissingReading=True", &RunFlags::enableMissingReading, true},
     {"enableChangeTo999=True", &RunFlags::enableChangeTo999, true},
     {"enableAddedBadChar=True", &RunFlags::enableAddedBadChar, true},
     {"enableReadingOver999=True", &RunFlags::enableReadingOver999, true},
     {"enableAddedCtrlZ=True", &RunFlags::enableAddedCtrlZ, true},
     {"enableMissingCtrlZ=True", &RunFlags::enableMissingCtrlZ, true}}};

constexpr std::uint64_t longestFile = 1 << 20;

const char* const bullet = "   \xE2\x80\xA2  ";
const char* const headLine = "Flag settings per 'runspec.txt' file:\r\n";
const char* const nothingFound = "No valid run specs found in 'runspec.txt'.\r\n"
                                 "  - To avoid getting this message either fix file 'runspec.txt'\r\n"
                                 "    or delete it.";

} // namespace

bool RunFlags::anyFault() const {
    return enableAddedReading || enableMissingReading || enableChangeTo999 || enableAddedBadChar ||
           enableReadingOver999 || enableAddedCtrlZ || enableMissingCtrlZ;
}

Runspec readRunspec(std::string_view bytes) {
    Runspec found;
    std::string lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        const std::string_view line = bytes.substr(0, end);
        for (const KnownLine& known : knownLines)
            if (line == known.text) {
                found.flags.*known.flag = known.value;
                lines += bullet + std::string(line) + "\r\n";
            }
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    found.report = lines.empty() ? nothingFound : headLine + lines;
    return found;
}

RunFlags HandleRunspec(const Files& files, Prompt& prompt, const std::string& workingDirectory) {
#ifdef _WIN32
    const std::string path = workingDirectory + "\\runspec.txt";
#else
    const std::string path = workingDirectory + "/runspec.txt";
#endif
    if (!files.exists(path))
        return {};
    const Runspec found = readRunspec(files.read(path, longestFile));
    prompt.tell(found.report);
    return found.flags;
}

} // namespace tally
