// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language/Speech.h"

#include "app/language/Interpreter.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <algorithm>
#include <array>

namespace tally {

namespace {

constexpr const char* section = "Settings";
constexpr const char* key = "Language";

constexpr std::array known = {Language{"en", "English"}, Language{"de", "Deutsch"},
                              Language{"fr", "Français"}, Language{"es", "Español"}};

bool isKnown(std::string_view code) {
    return std::any_of(known.begin(), known.end(),
                       [code](const Language& language) { return language.code == code; });
}

} // namespace

std::span<const Language> languages() {
    return known;
}

std::string chosenLanguage(const Settings& settings) {
    const std::string code = settings.get(section, key);
    return isKnown(code) ? code : std::string();
}

void chooseLanguage(Settings& settings, std::string_view code) {
    settings.set(section, key, std::string(code));
}

std::string languageInForce(const Settings& settings, const QLocale& system) {
    if (const std::string chosen = chosenLanguage(settings); !chosen.empty())
        return chosen;
    for (const QString& wanted : system.uiLanguages()) {
        const std::string code = wanted.section(QLatin1Char('-'), 0, 0).toStdString();
        if (isKnown(code))
            return code;
    }
    return "en";
}

Speech::Speech(QApplication& application, const std::string& language) {
    const QString code = QString::fromStdString(language);
    if (!tongue_.learn(code))
        return;
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    // Buttons of dialogs, print and file dialogs, the search of the help.
    if (toolkit_.load(QStringLiteral("qtbase_") + code, folder))
        QCoreApplication::installTranslator(&toolkit_);
    if (helpParts_.load(QStringLiteral("qt_help_") + code, folder))
        QCoreApplication::installTranslator(&helpParts_);
    QCoreApplication::installTranslator(&tongue_);
    application.installEventFilter(new Interpreter(tongue_, &application));
}

Speech::~Speech() {
    if (auto* const interpreter = qApp->findChild<Interpreter*>())
        delete interpreter;
    for (QTranslator* const translator : {static_cast<QTranslator*>(&tongue_), &toolkit_, &helpParts_})
        QCoreApplication::removeTranslator(translator);
}

} // namespace tally
