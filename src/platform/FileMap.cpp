// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileMap.h"

#include <QtGlobal>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/mman.h>
#endif

namespace tally {

#ifndef Q_OS_WIN

bool FileMap::map(int file, std::uint64_t start, std::size_t length) {
    release();
    // Without room taken beforehand a full disk would end the program when characters are put there.
    if (posix_fallocate(file, static_cast<off_t>(start), static_cast<off_t>(length)) != 0)
        return false;
    void* const mapped =
        mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_SHARED, file, static_cast<off_t>(start));
    if (mapped != MAP_FAILED)
        place_ = {static_cast<char*>(mapped), length};
    return !place_.empty();
}

void FileMap::release() {
    if (!place_.empty())
        munmap(place_.data(), place_.size());
    place_ = {};
}

#else

bool FileMap::map(int, std::uint64_t, std::size_t) {
    return false;
}

void FileMap::release() {}

#endif

} // namespace tally
