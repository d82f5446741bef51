// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/DialogHelp.h"

#include <QApplication>
#include <QDialog>
#include <QHash>
#include <QKeyEvent>

namespace tally {

QString helpPageOf(const QString& dialog) {
    static const QHash<QString, QString> pages = {
        {QStringLiteral("FileDialog"), QStringLiteral("file.html#open")},
        {QStringLiteral("MessageBox"), QStringLiteral("trouble.html")},
        {QStringLiteral("InputBox"), QStringLiteral("options.html#entries")},
        {QStringLiteral("DataSelect"), QStringLiteral("file.html#choose")},
        {QStringLiteral("ExportForm"), QStringLiteral("file.html#export")},
        {QStringLiteral("EditNotes"), QStringLiteral("edit.html#notes")},
        {QStringLiteral("ForceRdgs"), QStringLiteral("edit.html#force")},
        {QStringLiteral("displaysel"), QStringLiteral("view.html#mma")},
        {QStringLiteral("PortSel"), QStringLiteral("options.html#port")},
        {QStringLiteral("InstSel"), QStringLiteral("options.html#type")},
        {QStringLiteral("InstProperties"), QStringLiteral("options.html#type")},
        {QStringLiteral("Dwnloaditem"), QStringLiteral("instrument.html#download")},
        {QStringLiteral("status"), QStringLiteral("instrument.html#status")},
        {QStringLiteral("FindInstrument"), QStringLiteral("instrument.html#find")},
        {QStringLiteral("ArchiveAssign"), QStringLiteral("archive.html#window")},
        {QStringLiteral("InitInst"), QStringLiteral("instrument.html#initialize")},
        {QStringLiteral("Abort"), QStringLiteral("instrument.html#initialize")},
        {QStringLiteral("recover"), QStringLiteral("instrument.html#recover")},
        {QStringLiteral("loadsurv"), QStringLiteral("survey.html")},
        {QStringLiteral("surveyshow"), QStringLiteral("survey.html#result")},
        {QStringLiteral("station"), QStringLiteral("survey.html#result")},
        {QStringLiteral("About"), QStringLiteral("helpmenu.html")}};
    return pages.value(dialog);
}

DialogHelp::DialogHelp(Wanted wanted, QObject* parent) : QObject(parent), wanted_(std::move(wanted)) {
    qApp->installEventFilter(this);
}

// Where the program knows no page of a dialog, its first page is better than nothing.
bool DialogHelp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1)
        return false;
    auto* const dialog = qobject_cast<QDialog*>(static_cast<QWidget*>(watched)->window());
    if (!dialog)
        return false;
    wanted_(*dialog, helpPageOf(dialog->objectName()));
    return true;
}

} // namespace tally
