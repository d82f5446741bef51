// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ReplaceFile.h"

#include "core/Fault.h"
#include "platform/FilePath.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include "platform/FileBeside.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace tally {

namespace {

Fault fileFault(int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        return fault::diskFull();
    case EACCES:
    case EPERM:
    case EROFS:
        return fault::permissionDenied();
    case ENOENT:
    case ENOTDIR:
        return fault::pathNotFound();
    default:
        return fault::pathFileAccess();
    }
}

// Of a disk that has taken the file but not what belongs into it.
Fault diskFault(int error) {
    return error == ENOSPC || error == EDQUOT ? fault::diskFull() : fault::deviceIo();
}

Descriptor openFolder(const std::string& folder) {
    Descriptor readable(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!readable.isOpen() && errno == EACCES)
        return Descriptor(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return readable;
}

// A folder that may not be read (EBADF) and some network file systems (EINVAL) have no such call.
void syncFolder(const Descriptor& folder) {
    int done = 0;
    do
        done = fsync(folder.get());
    while (done != 0 && errno == EINTR);
    if (done != 0 && errno != EBADF && errno != EINVAL)
        throw diskFault(errno);
}

void writeAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file.get(), bytes.data(), bytes.size());
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (written == 0 || errno != EINTR)
            throw diskFault(errno);
    }
    int done = 0;
    do
        done = fdatasync(file.get());
    while (done != 0 && errno == EINTR);
    if (done != 0)
        throw diskFault(errno);
}

// What a file that is there lets be done to it; nothing when there is none.
std::optional<struct stat> oldFile(const Descriptor& folder, const std::string& name) {
    struct stat facts = {};
    if (fstatat(folder.get(), name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0) {
        if (errno == ENOENT)
            return {};
        throw fileFault(errno);
    }
    if (!S_ISREG(facts.st_mode))
        throw fault::pathFileAccess();
    if (faccessat(folder.get(), name.c_str(), W_OK, AT_EACCESS) != 0)
        throw fault::permissionDenied();
    return facts;
}

// A file system without owners and modes cannot keep them.
void takeOver(const struct stat& old, const Descriptor& file) {
    [[maybe_unused]] int ignored = fchown(file.get(), static_cast<uid_t>(-1), old.st_gid);
    if (geteuid() == 0)
        ignored = fchown(file.get(), old.st_uid, old.st_gid);
    ignored = fchmod(file.get(), old.st_mode & 07777U);
}

// Puts the new file in its place and the folder on the disk; when that fails, puts the old one back.
void exchange(const Descriptor& folder, FileBeside& beside, const std::string& name, bool hasOld) {
    const auto swap = [&] {
        return renameat2(folder.get(), beside.name().c_str(), folder.get(), name.c_str(), RENAME_EXCHANGE);
    };
    const bool swapped = hasOld && swap() == 0;
    // Not every file system can exchange two files.
    if (!swapped && renameat(folder.get(), beside.name().c_str(), folder.get(), name.c_str()) != 0)
        throw errno == EIO ? fault::deviceIo() : fileFault(errno);
    try {
        syncFolder(folder);
    } catch (const Fault&) {
        if (swapped)
            swap();
        else if (!hasOld)
            unlinkat(folder.get(), name.c_str(), 0);
        throw;
    }
    if (!swapped)
        beside.isGone();
}

} // namespace

void replaceFile(const std::string& path, std::string_view bytes, Access access) {
    const FilePath place = splitPath(throughLinks(path));
    if (path.empty())
        throw fault::pathNotFound();
    const Descriptor folder = openFolder(place.folder);
    if (!folder.isOpen())
        throw fileFault(errno);
    if (place.name.empty())
        throw fault::pathFileAccess();
    const auto old = oldFile(folder, place.name);
    FileBeside::removeLeft(folder);
    FileBeside beside(folder, access == Access::owner ? 0600 : 0666);
    if (!beside.file().isOpen())
        throw fileFault(errno);
    if (old)
        takeOver(*old, beside.file());
    writeAll(beside.file(), bytes);
    syncFolder(folder);
    exchange(folder, beside, place.name, old.has_value());
}

} // namespace tally

#endif
