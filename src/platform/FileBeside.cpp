// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileBeside.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <sys/file.h>
#include <sys/stat.h>

namespace tally {

namespace {

constexpr const char* beginning = ".tallyline-";
constexpr const char* ending = ".part";
constexpr int maximumNames = 10000; // tried; more are never taken at once

bool isOurs(const char* name) {
    const std::size_t length = std::strlen(name);
    return std::strncmp(name, beginning, std::strlen(beginning)) == 0 && length > std::strlen(ending) &&
           std::strcmp(name + length - std::strlen(ending), ending) == 0;
}

// A file system without locks (ENOLCK) is as good as an open lock for the one who makes the file.
bool isTaken(int file) {
    return flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

// The last folder that took long to look through.
class LargeFolder {
public:
    bool wasJustSeen(const struct stat& folder) {
        constexpr auto moment = std::chrono::seconds(5);
        const std::lock_guard lock(mutex_);
        return folder.st_dev == device_ && folder.st_ino == inode_ && Clock::now() - when_ < moment;
    }
    void seen(const struct stat& folder, std::size_t entries) {
        constexpr std::size_t large = 200;
        if (entries < large)
            return;
        const std::lock_guard lock(mutex_);
        device_ = folder.st_dev;
        inode_ = folder.st_ino;
        when_ = Clock::now();
    }

private:
    using Clock = std::chrono::steady_clock;
    std::mutex mutex_;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    Clock::time_point when_;
};

// Removes it when no program holds it.
void removeIfLeft(int folder, const char* name) {
    const Descriptor file(openat(folder, name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.isOpen() && flock(file.get(), LOCK_EX | LOCK_NB) == 0)
        unlinkat(folder, name, 0);
}

} // namespace

FileBeside::FileBeside(const Descriptor& folder, mode_t mode) : folder_(folder) {
    static std::atomic<unsigned> count = 0;
    for (int i = 0; i < maximumNames; ++i) {
        const std::string name =
            beginning + std::to_string(getpid()) + "-" + std::to_string(++count) + ending;
        if (make(name.c_str(), mode) || errno != EEXIST)
            return;
    }
}

// Who removes what was left may have taken it for that before it was locked; it then counts as one whose name
// is taken (EEXIST).
bool FileBeside::make(const char* name, mode_t mode) {
    Descriptor file(openat(folder_.get(), name, O_CREAT | O_EXCL | O_WRONLY | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!file.isOpen())
        return false;
    struct stat facts = {};
    if (isTaken(file.get()) || fstat(file.get(), &facts) != 0 || facts.st_nlink == 0) {
        errno = EEXIST;
        return false;
    }
    file_ = std::move(file);
    name_ = name;
    return true;
}

FileBeside::~FileBeside() {
    if (!name_.empty())
        unlinkat(folder_.get(), name_.c_str(), 0);
}

void FileBeside::removeLeft(const Descriptor& folder) {
    static LargeFolder large;
    struct stat facts = {};
    if (fstat(folder.get(), &facts) != 0 || large.wasJustSeen(facts))
        return;
    const int own = openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (own < 0)
        return;
    const auto closeIt = [](DIR* entries) { closedir(entries); };
    const std::unique_ptr<DIR, decltype(closeIt)> entries(fdopendir(own), closeIt);
    std::size_t count = 0;
    for (const dirent* entry = nullptr; entries && (entry = readdir(entries.get())) != nullptr; ++count)
        if (isOurs(entry->d_name))
            removeIfLeft(own, entry->d_name);
    large.seen(facts, count);
}

} // namespace tally

#endif
