// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/archive/ArchiveFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVariant>

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace tally {

using archive::StoreFault;
using archive::StoreTrouble;

namespace {

constexpr std::string_view magic = std::string_view("SQLite format 3\0", 16);
constexpr mode_t onlyOwner = 0600;

} // namespace

StoreFault cannotMake(const std::string& path, int error) {
    const bool full = error == ENOSPC || error == EDQUOT;
    const bool readOnly = error == EROFS || error == EACCES || error == EPERM;
    const char* why = full              ? "the disk is full"
                      : readOnly        ? "this user may not write there, or the medium is read-only"
                      : error == ENOENT ? "there is no such folder"
                                        : "the system reports an error";
    return {full       ? StoreTrouble::full
            : readOnly ? StoreTrouble::readOnly
                       : StoreTrouble::other,
            "The archive cannot be made (" + path + "): " + why};
}

FileFound lookAtFile(const std::string& path) {
    const QFileInfo info(QString::fromStdString(path));
    if (!info.exists() && !info.isSymLink())
        return FileFound::nothing;
    if (!info.isFile())
        return FileFound::foreign;
    if (info.size() == 0)
        return FileFound::empty;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return FileFound::unreadable;
    const QByteArray head = file.read(static_cast<qint64>(magic.size()));
    return head.toStdString() == magic ? FileFound::database : FileFound::foreign;
}

Connection::Mode modeFor(const std::string& path) {
    const QFileInfo info(QString::fromStdString(path));
    const QByteArray folder = QFile::encodeName(info.absolutePath());
    const bool fileWritable = access(QFile::encodeName(info.filePath()).constData(), W_OK) == 0;
    const bool folderWritable = access(folder.constData(), W_OK) == 0;
    if (fileWritable && folderWritable)
        return Connection::Mode::write;
    // Another writer's changes stand in the log beside the file; without a log the file alone is the whole.
    const QFileInfo log(info.filePath() + QStringLiteral("-wal"));
    return log.exists() && log.size() > 0 ? Connection::Mode::read : Connection::Mode::immutable;
}

void prepareFile(Connection& connection) {
    // A batch costs one flush; what was acknowledged then survives a power cut as far as the disk keeps its
    // word. A backup, or a file that was moved here, may have lost the write-ahead log that readers beside a
    // writer need.
    QSqlQuery& mode = connection.run("PRAGMA journal_mode");
    const bool logged = mode.next() && mode.value(0).toString() == QLatin1String("wal");
    mode.finish();
    if (!logged)
        connection.run("PRAGMA journal_mode = WAL").finish();
    connection.execute("PRAGMA synchronous = FULL");
    connection.execute("PRAGMA cache_size = -32768");
    connection.execute("PRAGMA temp_store = MEMORY");
}

NewFile::NewFile(std::string path) : path_(std::move(path)) {
    const int file = open(QFile::encodeName(QString::fromStdString(path_)).constData(),
                          O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, onlyOwner);
    if (file < 0) {
        if (errno == EEXIST)
            return;
        throw cannotMake(path_, errno);
    }
    close(file);
    made_ = true;
}

NewFile::~NewFile() {
    if (!made_ || kept_)
        return;
    for (const char* suffix : {"", "-wal", "-shm"})
        QFile::remove(QString::fromStdString(path_ + suffix));
}

} // namespace tally
