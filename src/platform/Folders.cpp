// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Folders.h"

#include <QDir>
#include <QStandardPaths>
#include <QStorageInfo>

#ifndef Q_OS_WIN
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tally::folders {

namespace {

#ifdef Q_OS_WIN
std::string ours(QStandardPaths::StandardLocation location) {
    return (QStandardPaths::writableLocation(location) + QStringLiteral("/Tallyline")).toStdString();
}
#else
std::string home() {
    const char* const given = std::getenv("HOME");
    if (given != nullptr && given[0] == '/')
        return given;
    const passwd* const user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

// What a variable of the environment says, else a folder of the home. A relative path counts as none.
std::string ours(const char* variable, const char* inHome) {
    const char* const given = std::getenv(variable);
    return (given != nullptr && given[0] == '/' ? given : home() + inHome) + "/Tallyline";
}

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

#ifdef Q_OS_WIN
std::string config() {
    return ours(QStandardPaths::GenericConfigLocation);
}

std::string data() {
    return ours(QStandardPaths::GenericDataLocation);
}

std::string cache() {
    return ours(QStandardPaths::GenericCacheLocation);
}

bool make(const std::string& folder) {
    return QDir().mkpath(QString::fromStdString(folder));
}
#else
std::string config() {
    return ours("XDG_CONFIG_HOME", "/.config");
}

std::string data() {
    return ours("XDG_DATA_HOME", "/.local/share");
}

std::string cache() {
    return ours("XDG_CACHE_HOME", "/.cache");
}

bool make(const std::string& folder) {
    constexpr mode_t ownerOnly = 0700;
    // Whatever hinders this shows at the end.
    for (std::size_t end = 0; end != std::string::npos;) {
        end = folder.find('/', end + 1);
        mkdir(folder.substr(0, end).c_str(), ownerOnly);
    }
    struct stat facts = {};
    return stat(folder.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}
#endif

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
