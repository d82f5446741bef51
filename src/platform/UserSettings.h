// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Settings.h"
#include "platform/IniText.h"

#include <QTimer>
#include <functional>
#include <optional>

namespace tally {

// The per-user store in one ini file, with the last good copy beside it (".bak"). What cannot be read or
// written is reported once and never stops the program: values then live as long as it runs.
class UserSettings : public Settings {
public:
    using Report = std::function<void(const std::string& text)>;

    // Reads the file at once. `files` must outlive the store.
    UserSettings(Files& files, std::string path);
    ~UserSettings() override;
    UserSettings(const UserSettings&) = delete;
    UserSettings& operator=(const UserSettings&) = delete;

    std::string get(const std::string& section, const std::string& key) const override;
    // Holds at once, and is written by flush(): when the event loop comes to rest, at the latest at the end
    // of the store.
    void set(const std::string& section, const std::string& key, const std::string& value) override;

    // Writes what was set; what another program changed meanwhile stays.
    void flush();

    // Who hears of the first trouble, also of one that has already happened. UTF-8.
    void onProblem(Report report);

private:
    std::optional<IniText> load(const std::string& path) const;
    void readBack();
    void save();
    void problem(const std::string& text);

    Files& files_;
    std::string path_;
    IniSections values_;
    IniSections unsaved_; // set here and in no file yet
    bool saving_ = false;
    bool written_ = false; // by the last save
    bool damaged_ = false; // the file is kept as ".damaged" before it is replaced
    std::string problem_;
    bool reported_ = false;
    Report report_;
    QTimer later_;
};

} // namespace tally
