// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ArchiveCopies.h"

#include "archive/EntryTexts.h"
#include "core/Fault.h"
#include "core/Files.h"
#include "core/NotesFile.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

namespace tally {

namespace {

constexpr QFile::Permissions readFile = QFile::ReadOwner;
constexpr QFile::Permissions readFolder = QFile::ReadOwner | QFile::ExeOwner;
constexpr QFile::Permissions writeFolder = readFolder | QFile::WriteOwner;

} // namespace

ArchiveCopies::ArchiveCopies(Files& files) : files_(files) {}

ArchiveCopies::~ArchiveCopies() {
    if (!folder_)
        return;
    // What cannot be written cannot be removed either.
    for (QDirIterator each(folder_->path(), QDir::Dirs | QDir::NoDotAndDotDot); each.hasNext();)
        QFile::setPermissions(each.next(), writeFolder);
}

std::string ArchiveCopies::put(const archive::Fetched& recording) {
    if (!folder_)
        folder_ = std::make_unique<QTemporaryDir>(
            QDir::temp().filePath(QStringLiteral("tallyline-archive-XXXXXX")));
    // A folder each: two recordings may have had the same file name.
    const QString folder = folder_->filePath(QString::fromStdString(recording.entry.name()));
    const std::string path = folder.toStdString() + "/" + archive::fileNameFor(recording.entry);
    if (files_.exists(path))
        return path;
    if (!folder_->isValid() || !(QDir().mkpath(folder) && QFile::setPermissions(folder, writeFolder)))
        throw fault::pathFileAccess();
    files_.write(path, recording.given.bytes);
    if (recording.given.notesFile)
        files_.write(notesPath(path), *recording.given.notesFile);
    for (const std::string& file : {path, notesPath(path)})
        QFile::setPermissions(QString::fromStdString(file), readFile);
    QFile::setPermissions(folder, readFolder);
    return path;
}

bool ArchiveCopies::holds(const std::string& path) const {
    return folder_ && path.starts_with(folder_->path().toStdString() + "/");
}

} // namespace tally
