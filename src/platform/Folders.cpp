// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Folders.h"

#include <QDir>
#include <QStandardPaths>
#include <QStorageInfo>

namespace tally::folders {

namespace {

std::string ours(QStandardPaths::StandardLocation location) {
    return (QStandardPaths::writableLocation(location) + QStringLiteral("/Tallyline")).toStdString();
}

#ifndef Q_OS_WIN
// What people plug in or mount; the rest of the list are the system's own file systems.
bool isUserVolume(const QStorageInfo& volume) {
    const QString root = volume.rootPath();
    for (const auto* place : {"/media/", "/mnt/", "/run/media/", "/Volumes/"})
        if (root.startsWith(QLatin1String(place)))
            return true;
    return root == QStringLiteral("/mnt");
}
#endif

} // namespace

std::string config() {
    return ours(QStandardPaths::GenericConfigLocation);
}

std::string data() {
    return ours(QStandardPaths::GenericDataLocation);
}

std::string cache() {
    return ours(QStandardPaths::GenericCacheLocation);
}

std::string settingsFile() {
    return config() + "/Tallyline.ini";
}

std::string recoverFile() {
#ifdef Q_OS_WIN
    return "c:\\temp.dat";
#else
    make(cache());
    return cache() + "/temp.dat";
#endif
}

bool make(const std::string& folder) {
    return QDir().mkpath(QString::fromStdString(folder));
}

std::vector<Volume> volumes() {
    std::vector<Volume> list;
#ifdef Q_OS_WIN
    for (const QFileInfo& drive : QDir::drives())
        list.push_back(
            {QDir::toNativeSeparators(drive.filePath()).toStdString(), drive.filePath().toStdString()});
#else
    list.push_back({"Home (" + QDir::homePath().toStdString() + ")", QDir::homePath().toStdString()});
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isReady() && isUserVolume(volume))
            list.push_back({volume.displayName().toStdString(), volume.rootPath().toStdString()});
    list.push_back({"/", "/"});
#endif
    return list;
}

} // namespace tally::folders
