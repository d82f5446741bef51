// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/PartFile.h"

#include "platform/archive/ArchiveFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tally {

using archive::StoreFault;
using archive::StoreTrouble;

namespace {

constexpr mode_t onlyOwner = 0600;

StoreFault isThere(const std::string& path) {
    return {StoreTrouble::other, "There is a file of this name already: " + path};
}

// Not every file system can rename without replacing, or sync a folder.
int renameAlone(const std::string& from, const std::string& to) {
    const int done = renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    return done != 0 && errno == EINVAL ? rename(from.c_str(), to.c_str()) : done;
}

bool syncFolderOf(const std::string& path) {
    const auto folder = std::filesystem::absolute(path).parent_path();
    const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return !opened.isOpen() || fsync(opened.get()) == 0 || errno == EINVAL;
}

} // namespace

PartFile::PartFile(std::string path) : path_(std::move(path)), name_(path_ + ".part") {
    if (lookAtFile(path_) != FileFound::nothing)
        throw isThere(path_);
    const FileFound left = lookAtFile(name_);
    if (left == FileFound::foreign || left == FileFound::unreadable)
        throw isThere(name_);
    file_ = Descriptor(open(name_.c_str(), O_CREAT | O_RDWR | O_NOFOLLOW | O_CLOEXEC, onlyOwner));
    if (!file_.isOpen())
        throw cannotMake(path_, errno);
    takeOver();
}

void PartFile::takeOver() {
    struct stat facts = {};
    const bool locked = flock(file_.get(), LOCK_EX | LOCK_NB) == 0;
    // Another program may have finished it, or given it up, just before.
    if (!locked || lookAtFile(path_) != FileFound::nothing || fstat(file_.get(), &facts) != 0 ||
        facts.st_nlink == 0)
        throw StoreFault(StoreTrouble::busy, "Another program is writing this file: " + path_);
    removeLogs();
    if (fchmod(file_.get(), onlyOwner) != 0 || ftruncate(file_.get(), 0) != 0)
        throw cannotMake(path_, errno);
}

PartFile::~PartFile() {
    if (finished_)
        return;
    removeLogs();
    unlink(name_.c_str());
}

void PartFile::removeLogs() const {
    for (const char* suffix : {"-wal", "-shm"})
        unlink((name_ + suffix).c_str());
}

void PartFile::finish() {
    if (fsync(file_.get()) != 0)
        throw cannotMake(path_, errno);
    if (renameAlone(name_, path_) != 0)
        throw errno == EEXIST ? isThere(path_) : cannotMake(path_, errno);
    finished_ = true;
    if (!syncFolderOf(path_))
        throw cannotMake(path_, errno);
}

} // namespace tally
