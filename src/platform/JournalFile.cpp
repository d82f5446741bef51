// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JournalFile.h"

#ifdef Q_OS_WIN
#include <QDir>
#include <io.h>
#include <windows.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

namespace tally {

bool JournalFile::create(const std::string& path) {
    file_.setFileName(QString::fromStdString(path));
    if (!file_.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    file_.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
#ifndef Q_OS_WIN
    flock(file_.handle(), LOCK_EX | LOCK_NB);
#endif
    return true;
}

bool JournalFile::open(const std::string& path) {
    file_.setFileName(QString::fromStdString(path));
    return file_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly |
                      QIODevice::Unbuffered);
}

bool JournalFile::write(std::string_view bytes) {
    return file_.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size());
}

bool JournalFile::sync() {
#ifdef Q_OS_WIN
    return _commit(file_.handle()) == 0;
#else
    return fsync(file_.handle()) == 0;
#endif
}

#ifdef Q_OS_WIN

bool isHeld(const std::string& path) {
    const QString name = QDir::toNativeSeparators(QString::fromStdString(path));
    const HANDLE alone = CreateFileW(reinterpret_cast<const wchar_t*>(name.utf16()), GENERIC_READ, 0, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (alone == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(alone);
    return false;
}

#else

bool isHeld(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return flock(file.handle(), LOCK_SH | LOCK_NB) != 0;
}

#endif

} // namespace tally
