// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/UserSettings.h"

#include "core/Fault.h"
#include "platform/Folders.h"

#include <QCoreApplication>
#include <QLockFile>

namespace tally {

namespace {

// A store of some dozen short values; anything longer is not ours.
constexpr std::uint64_t maximumBytes = 1'000'000;
constexpr int lockMilliseconds = 500;

std::string backup(const std::string& path) {
    return path + ".bak";
}

} // namespace

UserSettings::UserSettings(Files& files, std::string path) : files_(files), path_(std::move(path)) {
    readBack();
    // A command sets several values; they go to the disk together.
    later_.setSingleShot(true);
    QObject::connect(&later_, &QTimer::timeout, &later_, [this] { flush(); });
}

UserSettings::~UserSettings() {
    flush();
}

std::optional<IniText> UserSettings::load(const std::string& path) const {
    const std::string bytes = files_.read(path, maximumBytes + 1);
    if (bytes.size() > maximumBytes)
        return std::nullopt;
    return parseIni(bytes);
}

// The file as it stands now; where it is damaged its last good copy, and only then what can be read of it.
void UserSettings::readBack() {
    try {
        if (!files_.exists(path_))
            return;
        auto ini = load(path_);
        // We never write an empty file: one beside a copy was cut by a crash of the machine.
        const bool emptied = ini && ini->sections.empty() && files_.exists(backup(path_));
        damaged_ = !ini || !ini->whole || emptied;
        if (damaged_) {
            bool copyUsed = false;
            if (files_.exists(backup(path_))) {
                const auto copy = load(backup(path_));
                if (copy && copy->whole) {
                    ini = copy;
                    copyUsed = true;
                }
            }
            problem("The settings file " + path_ + " is damaged. " +
                    (copyUsed ? "The last good copy is used." : "What could be read of it is used."));
        }
        if (ini)
            values_ = std::move(ini->sections);
    } catch (const Fault& fault) {
        damaged_ = true;
        problem("The settings file " + path_ + " cannot be read: " + fault.what() + ".");
    }
    for (const auto& [section, keys] : unsaved_)
        for (const auto& [key, value] : keys)
            values_[section][key] = value;
}

std::string UserSettings::get(const std::string& section, const std::string& key) const {
    const auto found = values_.find(section);
    if (found == values_.end())
        return {};
    const auto value = found->second.find(key);
    return value == found->second.end() ? std::string() : value->second;
}

void UserSettings::set(const std::string& section, const std::string& key, const std::string& value) {
    if (get(section, key) == value)
        return;
    values_[section][key] = value;
    unsaved_[section][key] = value;
    if (QCoreApplication::instance())
        later_.start(0);
}

void UserSettings::flush() {
    later_.stop();
    // Who is waiting for the disk goes on with what was set meanwhile.
    if (unsaved_.empty() || saving_)
        return;
    const auto slash = path_.find_last_of('/');
    if (slash != std::string::npos)
        folders::make(path_.substr(0, slash));
    QLockFile lock(QString::fromStdString(path_ + ".lock"));
    // Where there can be no lock (a folder that cannot be written to), saving fails and says so.
    lock.tryLock(lockMilliseconds);
    if (!damaged_)
        readBack();
    saving_ = true;
    save();
    saving_ = false;
    if (written_ && !unsaved_.empty())
        later_.start(0);
}

void UserSettings::save() {
    const std::string text = formatIni(values_);
    // Others may be set while the disk is waited for.
    IniSections saving;
    saving.swap(unsaved_);
    written_ = false;
    try {
        if (damaged_) {
            files_.write(path_ + ".damaged", files_.read(path_, maximumBytes));
            damaged_ = false;
        }
        files_.write(path_, text);
        written_ = true;
        saving.clear();
        files_.write(backup(path_), text);
    } catch (const Fault& fault) {
        for (auto& [section, keys] : saving)
            unsaved_[section].merge(keys);
        problem("The settings cannot be saved in " + path_ + ": " + fault.what() +
                ". They hold until the program ends.");
    }
}

void UserSettings::onProblem(Report report) {
    report_ = std::move(report);
    if (!problem_.empty())
        problem(problem_);
}

void UserSettings::problem(const std::string& text) {
    if (reported_)
        return;
    problem_ = text;
    if (report_) {
        reported_ = true;
        report_(text);
    }
}

} // namespace tally
