// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language/Interpreter.h"

#include <QAbstractButton>
#include <QActionEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QWidget>

namespace tally {

namespace {

// Sets what differs, so that nothing is laid out again for nothing.
template <class Read, class Write>
void put(const Tongue& tongue, Read read, Write write) {
    const QString english = read();
    if (english.isEmpty())
        return;
    const QString said = tongue.say(english);
    if (said != english)
        write(said);
}

bool asWritten(const QObject& object) {
    return object.property("asWritten").toBool();
}

// Dialogs of the toolkit speak by themselves, and take their lists of names back as they were given.
bool isToolkit(const QWidget& widget) {
    return widget.window()->inherits("QFileDialog") || widget.window()->inherits("QAbstractPrintDialog");
}

} // namespace

Interpreter::Interpreter(const Tongue& tongue, QObject* parent) : QObject(parent), tongue_(tongue) {}

bool Interpreter::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType() || asWritten(*watched))
        return false;
    auto& widget = static_cast<QWidget&>(*watched);
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::Show:
    case QEvent::WindowTitleChange:
    case QEvent::ToolTipChange:
        interpret(widget);
        break;
    case QEvent::LayoutRequest:
        // A part of it has another text than before.
        for (QObject* child : isToolkit(widget) ? QObjectList() : widget.children())
            if (child->isWidgetType() && !asWritten(*child))
                interpretOwn(static_cast<QWidget&>(*child));
        break;
    case QEvent::ActionAdded:
    case QEvent::ActionChanged:
        interpret(*static_cast<QActionEvent*>(event)->action());
        break;
    default:
        break;
    }
    return false;
}

void Interpreter::interpret(QWidget& widget) {
    put(
        tongue_, [&] { return widget.windowTitle(); },
        [&](const QString& said) { widget.setWindowTitle(said); });
    if (!isToolkit(widget))
        interpretOwn(widget);
}

void Interpreter::interpretOwn(QWidget& widget) {
    const auto change = [this](auto read, auto write) { put(tongue_, read, write); };
    change([&] { return widget.toolTip(); }, [&](const QString& said) { widget.setToolTip(said); });
    change([&] { return widget.accessibleName(); },
           [&](const QString& said) { widget.setAccessibleName(said); });
    change([&] { return widget.accessibleDescription(); },
           [&](const QString& said) { widget.setAccessibleDescription(said); });
    if (auto* const label = qobject_cast<QLabel*>(&widget))
        change([&] { return label->text(); }, [&](const QString& said) { label->setText(said); });
    else if (auto* const button = qobject_cast<QAbstractButton*>(&widget))
        change([&] { return button->text(); }, [&](const QString& said) { button->setText(said); });
    else if (auto* const group = qobject_cast<QGroupBox*>(&widget))
        change([&] { return group->title(); }, [&](const QString& said) { group->setTitle(said); });
    else if (auto* const line = qobject_cast<QLineEdit*>(&widget))
        change([&] { return line->placeholderText(); },
               [&](const QString& said) { line->setPlaceholderText(said); });
    else if (auto* const tabs = qobject_cast<QTabWidget*>(&widget))
        for (int i = 0; i < tabs->count(); ++i)
            change([&] { return tabs->tabText(i); }, [&](const QString& said) { tabs->setTabText(i, said); });
    else if (auto* const box = qobject_cast<QComboBox*>(&widget); box && !box->isEditable())
        for (int i = 0; i < box->count(); ++i)
            change([&] { return box->itemText(i); }, [&](const QString& said) { box->setItemText(i, said); });
}

void Interpreter::interpret(QAction& action) {
    if (asWritten(action))
        return;
    const auto change = [this](auto read, auto write) { put(tongue_, read, write); };
    change([&] { return action.text(); }, [&](const QString& said) { action.setText(said); });
    change([&] { return action.toolTip(); }, [&](const QString& said) { action.setToolTip(said); });
    change([&] { return action.statusTip(); }, [&](const QString& said) { action.setStatusTip(said); });
}

} // namespace tally
