// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Help.h"

#include "app/forms/About.h"
#include "app/forms/DialogHelp.h"
#include "app/forms/HelpWindow.h"
#include "app/forms/MenuHelp.h"
#include "core/forms/Words.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QMainWindow>
#include <QMenuBar>

namespace tally {

namespace {

// Beside the program where it was built, in the shared data where it was installed; in English where there is
// none in the language of the window.
QString helpFile() {
    const QString program = QCoreApplication::applicationDirPath();
    const QString english = QStringLiteral("tallyhelp.hlp");
    const QString own = QCoreApplication::translate("Tallyline", "tallyhelp.hlp");
    for (const QString& name : {own, english})
        for (const QString& place : {QStringLiteral("/../share/tallyline/"), QStringLiteral("/")})
            if (QFileInfo::exists(program + place + name))
                return program + place + name;
    return program + QLatin1Char('/') + english;
}

} // namespace

TLY_Help::TLY_Help(const Services& services, QMainWindow& window)
    : services_(services), window_(window), helpFile_(helpFile()) {
    new MenuHelp(
        *window.menuBar(), [this](const QString& menu) { showMenu(menu); }, &window);
    new DialogHelp([this](QDialog& dialog, const QString& page) { show(dialog, page); }, &window);
}

void TLY_Help::mnuItemHelp_Click() {
    show(window_, {});
}

void TLY_Help::showMenu(const QString& menu) {
    static const QHash<QString, QString> pages = {
        {QStringLiteral("mnuFile"), QStringLiteral("file.html")},
        {QStringLiteral("mnusurvey"), QStringLiteral("survey.html")},
        {QStringLiteral("mnuEdit"), QStringLiteral("edit.html")},
        {QStringLiteral("mnuView"), QStringLiteral("view.html")},
        {QStringLiteral("mnuChart"), QStringLiteral("chart.html")},
        {QStringLiteral("mnuInstrument"), QStringLiteral("instrument.html")},
        {QStringLiteral("mnuOptions"), QStringLiteral("options.html")},
        {QStringLiteral("mnuHelp"), QStringLiteral("helpmenu.html")}};
    show(window_, pages.value(menu));
}

void TLY_Help::show(QWidget& over, const QString& page) {
    QString why;
    if (!WinHelpA(over, helpFile_, &why, page))
        services_.prompt.tell(why.toStdString());
}

void TLY_Help::mnuItemAbout_Click() {
    About about(words(services_.settings.get("Security", "userid")), &window_);
    about.exec();
}

} // namespace tally
