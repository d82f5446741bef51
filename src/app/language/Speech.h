// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/language/Tongue.h"
#include "core/Settings.h"

#include <QTranslator>
#include <span>
#include <string>
#include <string_view>

class QApplication;
class QLocale;

namespace tally {

// A language of the window: its code and what it calls itself.
struct Language {
    std::string_view code;
    std::string_view name;
};

// All languages of the window, English first.
std::span<const Language> languages();

// The choice that is kept: a code, or empty for the system's language. What is no code counts as empty.
std::string chosenLanguage(const Settings& settings);
void chooseLanguage(Settings& settings, std::string_view code);

// The language in force: the chosen one, else the first of the system's that the window knows, else English.
std::string languageInForce(const Settings& settings, const QLocale& system);

// Speaks a language as long as it lives: our words, those of Qt's dialogs, and what widgets show. English
// needs nothing.
class Speech {
public:
    Speech(QApplication& application, const std::string& language);
    ~Speech();
    Speech(const Speech&) = delete;
    Speech& operator=(const Speech&) = delete;

private:
    Tongue tongue_;
    QTranslator toolkit_;
    QTranslator helpParts_;
};

} // namespace tally
