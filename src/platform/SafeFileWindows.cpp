// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SafeFile.h"

#include "core/Fault.h"
#include "platform/ReplaceFile.h"

#ifdef Q_OS_WIN

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

namespace tally {

namespace {

Fault openFault(const QFileInfo& file, QFileDevice::FileError error) {
    if (file.isDir())
        return fault::pathFileAccess();
    if (!file.dir().exists())
        return fault::pathNotFound();
    if (error == QFileDevice::ResourceError)
        return fault::diskFull();
    // An existing file without the right to write is a WriteError, a folder without it an OpenError.
    const bool mayWrite = QFileInfo(file.path()).isWritable() && (!file.exists() || file.isWritable());
    if (error == QFileDevice::PermissionsError || !mayWrite)
        return fault::permissionDenied();
    return fault::pathFileAccess();
}

Fault writeFault(QFileDevice::FileError error) {
    return error == QFileDevice::ResourceError ? fault::diskFull() : fault::deviceIo();
}

// Gives how much was written. What a disk still takes before it is full is no error yet; the next write is.
qint64 writeAll(QSaveFile& file, std::string_view bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    qint64 written = 0;
    while (written < size) {
        const qint64 more = file.write(bytes.data() + written, size - written);
        if (more <= 0)
            break;
        written += more;
    }
    return written;
}

} // namespace

bool SafeFile::exists(const std::string& path) const {
    return !path.empty() && QFileInfo::exists(QString::fromStdString(path));
}

bool SafeFile::same(const std::string& path, const std::string& other) const {
    if (path == other)
        return true;
    const QString found = QFileInfo(QString::fromStdString(path)).canonicalFilePath();
    return !found.isEmpty() && found == QFileInfo(QString::fromStdString(other)).canonicalFilePath();
}

std::string SafeFile::read(const std::string& path, std::uint64_t maximum) const {
    const QFileInfo info(QString::fromStdString(path));
    if (path.empty() || !info.exists())
        throw fault::fileNotFound();
    if (!info.isFile())
        throw fault::pathFileAccess();
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        if (file.error() == QFileDevice::PermissionsError || !info.isReadable())
            throw fault::permissionDenied();
        throw info.exists() ? fault::pathFileAccess() : fault::fileNotFound();
    }
    std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(
                          maximum, static_cast<std::uint64_t>(std::max<qint64>(file.size(), 0)))),
                      '\0');
    const qint64 got = file.read(bytes.data(), static_cast<qint64>(bytes.size()));
    if (got < 0)
        throw fault::deviceIo();
    bytes.resize(static_cast<std::size_t>(got));
    return bytes;
}

void SafeFile::write(const std::string& path, const std::string& bytes) {
    replaceFile(path, bytes);
}

// Rights are those of the folder here, and QSaveFile brings the bytes to the disk.
void replaceFile(const std::string& path, std::string_view bytes, Access) {
    const QFileInfo info(QString::fromStdString(path));
    if (path.empty())
        throw fault::pathNotFound();
    if (info.exists() && !info.isFile())
        throw fault::pathFileAccess();
    QSaveFile file(info.filePath());
    // Unbuffered, so that each write tells what became of it: a buffer that was flushed in part does not say
    // that the disk is full.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw openFault(info, file.error());
    const qint64 written = writeAll(file, bytes);
    const bool whole = written == static_cast<qint64>(bytes.size()) && file.error() == QFileDevice::NoError;
    const QFileDevice::FileError error = file.error();
    if (!whole) {
        file.cancelWriting();
        file.commit();
        throw writeFault(error);
    }
    if (!file.commit())
        throw file.error() == QFileDevice::RenameError ? fault::permissionDenied() : writeFault(file.error());
}

} // namespace tally

#endif
