// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JournalFile.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include "platform/Descriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>

namespace tally {

struct JournalFile::Open {
    Descriptor file;
};

namespace {

constexpr mode_t ownerOnly = 0600;

// Others hold a lock for a moment only: to see whether it is held, or to remove the file. A disk without
// locks (ENOLCK) has nobody who removes it.
void lock(int file) {
    while (flock(file, LOCK_EX) != 0 && errno == EINTR) {
    }
}

} // namespace

bool JournalFile::failed(int error) {
    error_ = std::generic_category().message(error);
    full_ = error == ENOSPC || error == EDQUOT;
    return false;
}

bool JournalFile::create(const std::string& path) {
    Descriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, ownerOnly));
    wasThere_ = !file.isOpen() && errno == EEXIST;
    if (!file.isOpen())
        return failed(errno);
    lock(file.get());
    struct stat facts = {};
    if (fstat(file.get(), &facts) != 0)
        return failed(errno);
    // Another program took it for an old one before it was locked.
    wasThere_ = facts.st_nlink == 0;
    if (wasThere_)
        return failed(EEXIST);
    file_ = std::make_shared<Open>(Open{std::move(file)});
    return true;
}

bool JournalFile::open(const std::string& path) {
    Descriptor file(::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
    if (!file.isOpen())
        return failed(errno);
    file_ = std::make_shared<Open>(Open{std::move(file)});
    return true;
}

bool JournalFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file_->file.get(), bytes.data(), bytes.size());
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (written == 0 || errno != EINTR)
            return failed(written == 0 ? ENOSPC : errno);
    }
    return true;
}

bool JournalFile::sync() {
    int done = 0;
    do
        done = fdatasync(file_->file.get());
    while (done != 0 && errno == EINTR);
    return done == 0 || failed(errno);
}

bool JournalFile::cut(std::uint64_t size) {
    return ftruncate(file_->file.get(), static_cast<off_t>(size)) == 0 || failed(errno);
}

int JournalFile::descriptor() const {
    return file_ ? file_->file.get() : -1;
}

bool syncFolder(const std::string& folder) {
    const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened.isOpen() && (fsync(opened.get()) == 0 || errno == EINVAL);
}

bool isHeld(const std::string& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return file.isOpen() && flock(file.get(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

void whileHeld(const std::string& path, const std::function<void()>& action) {
    const Descriptor file(open(path.c_str(), O_RDWR | O_CLOEXEC));
    if (file.isOpen() && flock(file.get(), LOCK_EX | LOCK_NB) == 0)
        action();
}

} // namespace tally

#endif
