// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FilePath.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include <array>
#include <climits>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace tally {

FilePath splitPath(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos)
        return {".", path};
    return {slash == 0 ? "/" : path.substr(0, slash), path.substr(slash + 1)};
}

std::string absolutePath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return path.empty() || error ? path : absolute.lexically_normal().string();
}

std::string throughLinks(std::string path) {
    constexpr int maximumLinks = 40; // where the system gives up as well
    for (int i = 0; i < maximumLinks; ++i) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = readlink(path.c_str(), target.data(), target.size());
        if (length <= 0)
            return path;
        const std::string next(target.data(), static_cast<std::size_t>(length));
        path = next.front() == '/' ? next : splitPath(path).folder + "/" + next;
    }
    return path;
}

} // namespace tally

#endif
