// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/JournalFile.h"

#include <QtGlobal>

#ifdef Q_OS_WIN

#include <QDir>
#include <QFile>
#include <io.h>
#include <windows.h>

namespace tally {

struct JournalFile::Open {
    QFile file;
};

namespace {

bool isAlone(const std::string& path, DWORD& error) {
    const QString name = QDir::toNativeSeparators(QString::fromStdString(path));
    const HANDLE alone = CreateFileW(reinterpret_cast<const wchar_t*>(name.utf16()), GENERIC_READ, 0, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    error = GetLastError();
    if (alone == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(alone);
    return true;
}

} // namespace

bool JournalFile::create(const std::string& path) {
    auto file = std::make_shared<Open>();
    file->file.setFileName(QString::fromStdString(path));
    wasThere_ = file->file.exists();
    error_.clear();
    if (file->file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        file_ = std::move(file);
    else
        error_ = file->file.errorString().toStdString();
    return isOpen();
}

bool JournalFile::open(const std::string& path) {
    auto file = std::make_shared<Open>();
    file->file.setFileName(QString::fromStdString(path));
    if (file->file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly |
                        QIODevice::Unbuffered))
        file_ = std::move(file);
    else
        error_ = file->file.errorString().toStdString();
    return isOpen();
}

bool JournalFile::write(std::string_view bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    if (file_->file.write(bytes.data(), size) == size)
        return true;
    error_ = file_->file.errorString().toStdString();
    return false;
}

bool JournalFile::sync() {
    return _commit(file_->file.handle()) == 0;
}

bool JournalFile::cut(std::uint64_t size) {
    return file_->file.resize(static_cast<qint64>(size));
}

int JournalFile::descriptor() const {
    return -1;
}

bool syncFolder(const std::string&) {
    return true;
}

bool isHeld(const std::string& path) {
    DWORD error = 0;
    return !isAlone(path, error) && error == ERROR_SHARING_VIOLATION;
}

// An open file cannot be removed here, so that it need not be held.
void whileHeld(const std::string& path, const std::function<void()>& action) {
    DWORD error = 0;
    if (isAlone(path, error))
        action();
}

} // namespace tally

#endif
