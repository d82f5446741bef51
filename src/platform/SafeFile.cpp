// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SafeFile.h"

#include "core/Fault.h"
#include "platform/ReplaceFile.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include "platform/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace tally {

namespace {

constexpr std::size_t maximumAtOnce = 65536;

// The path without links and ways around; empty when it leads nowhere.
std::string canonical(const std::string& path) {
    const auto freeIt = [](char* text) { std::free(text); };
    const std::unique_ptr<char, decltype(freeIt)> found(realpath(path.c_str(), nullptr), freeIt);
    return found ? std::string(found.get()) : std::string();
}

Fault readFault(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return fault::fileNotFound();
    case EACCES:
    case EPERM:
        return fault::permissionDenied();
    case EIO:
        return fault::deviceIo();
    default:
        return fault::pathFileAccess();
    }
}

std::string bytesOf(const std::string& path, std::uint64_t maximum) {
    // Without waiting: a pipe would wait for its writer.
    const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen())
        throw readFault(errno);
    struct stat facts = {};
    if (fstat(file.get(), &facts) != 0)
        throw fault::deviceIo();
    if (!S_ISREG(facts.st_mode))
        throw fault::pathFileAccess();
    std::string bytes;
    // One more than there should be, so that the end shows.
    bytes.reserve(std::min<std::uint64_t>(maximum, static_cast<std::uint64_t>(facts.st_size) + 1));
    while (bytes.size() < maximum) {
        const std::size_t had = bytes.size();
        const std::size_t left = bytes.capacity() > had ? bytes.capacity() - had : maximumAtOnce;
        bytes.resize(had + std::min<std::uint64_t>(left, maximum - had));
        const ssize_t got = ::read(file.get(), bytes.data() + had, bytes.size() - had);
        // What was read before an error is no shorter file.
        if (got < 0 && errno != EINTR)
            throw fault::deviceIo();
        bytes.resize(had + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
        if (got == 0)
            break;
    }
    return bytes;
}

} // namespace

bool SafeFile::exists(const std::string& path) const {
    struct stat facts = {};
    return !path.empty() && stat(path.c_str(), &facts) == 0;
}

bool SafeFile::same(const std::string& path, const std::string& other) const {
    if (path == other)
        return true;
    const std::string found = canonical(path);
    return !found.empty() && found == canonical(other);
}

std::string SafeFile::read(const std::string& path, std::uint64_t maximum) const {
    try {
        return bytesOf(path, maximum);
    } catch (const Fault& fault) {
        throw fault.about(path);
    }
}

void SafeFile::write(const std::string& path, const std::string& bytes) {
    try {
        replaceFile(path, bytes);
    } catch (const Fault& fault) {
        throw fault.about(path);
    }
}

} // namespace tally

#endif
