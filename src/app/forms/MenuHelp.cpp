// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/MenuHelp.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace tally {

namespace {

// The menu of the bar that a menu or submenu belongs to.
QString barMenu(const QObject* menu) {
    const auto* above = qobject_cast<const QMenu*>(menu->parent());
    return above ? barMenu(above) : menu->objectName();
}

void closeMenus() {
    while (QWidget* open = QApplication::activePopupWidget())
        if (!open->close())
            return;
}

} // namespace

MenuHelp::MenuHelp(QMenuBar& bar, std::function<void(const QString& menu)> wanted, QObject* parent)
    : QObject(parent), wanted_(std::move(wanted)) {
    for (QMenu* menu : bar.findChildren<QMenu*>())
        menu->installEventFilter(this);
}

bool MenuHelp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1)
        return QObject::eventFilter(watched, event);
    const QString menu = barMenu(watched);
    closeMenus();
    // The menu is still busy with the key.
    QTimer::singleShot(0, this, [this, menu] { wanted_(menu); });
    return true;
}

} // namespace tally
