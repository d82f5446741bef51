// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/PathBeside.h"

#include "core/Text1252.h"

namespace tally {

namespace {

constexpr int replaced = 3; // characters

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

std::string pathBeside(const std::string& dataPath, std::string_view extension) {
    const std::size_t name = dataPath.find_last_of("/\\") + 1;
    const bool utf8 = repairedUtf8(dataPath.substr(name)) == dataPath.substr(name);
    std::size_t end = dataPath.size();
    for (int cut = 0; cut < replaced; ++cut) {
        if (end == name)
            return dataPath + "." + std::string(extension);
        do
            --end;
        while (utf8 && end > name && isContinuation(dataPath[end]));
    }
    return dataPath.substr(0, end) + std::string(extension);
}

} // namespace tally
