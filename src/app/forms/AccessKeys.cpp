// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/forms/AccessKeys.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSet>
#include <QShortcut>
#include <QTabBar>
#include <QTimer>
#include <algorithm>

namespace tally {

namespace {

constexpr const char* keyName = "accessKey";
constexpr const char* shortcutName = "accessShortcut";

QChar markedKey(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != QLatin1Char('&'))
            continue;
        if (caption[i + 1] != QLatin1Char('&'))
            return caption[i + 1].toUpper();
        ++i;
    }
    return {};
}

// A number says most ("Com3"), then the letters that begin a word: they are found fastest.
QString candidates(const QString& caption) {
    QString first;
    QString others;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const QChar c = caption[i].toUpper();
        if (!c.isLetterOrNumber() || c.unicode() > 0xff)
            continue;
        const bool begins = i == 0 || !caption[i - 1].isLetterOrNumber();
        const bool ends = i + 1 == caption.size() || caption[i + 1].isSpace();
        const bool numbers = c.isDigit() && ends && i > 0 && caption[i - 1].isLetter();
        if (numbers)
            first.prepend(c);
        else
            (begins ? first : others) += c;
    }
    return first + others;
}

// A letter that is not in the caption is better than none.
QChar freeKey(const QString& caption, QSet<QChar>& taken) {
    if (caption.trimmed().isEmpty())
        return {};
    static const QString any = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    for (const QChar c : candidates(caption) + any) {
        if (taken.contains(c))
            continue;
        taken.insert(c);
        return c;
    }
    return {};
}

QKeySequence withAlt(QChar key) {
    return QKeySequence(QStringLiteral("Alt+") + key);
}

// What the user works with. Parts of another control are reached through it.
bool isField(const QWidget& widget) {
    if (widget.focusPolicy() == Qt::NoFocus || qobject_cast<QAbstractSpinBox*>(widget.parentWidget()) ||
        qobject_cast<QComboBox*>(widget.parentWidget()))
        return false;
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget) ||
           qobject_cast<const QScrollBar*>(&widget) ||
           (qobject_cast<const QAbstractScrollArea*>(&widget) && !widget.accessibleName().isEmpty());
}

QLabel* labelOf(const QWidget& field, const QList<QLabel*>& labels) {
    for (QLabel* const label : labels)
        if (label->buddy() == &field)
            return label;
    return nullptr;
}

// What a field is called where no label stands beside it.
void assignField(QWidget& field, QLabel* label, QSet<QChar>& taken) {
    const QString name = label ? label->text() : field.accessibleName();
    const QChar key = freeKey(name, taken);
    if (key.isNull())
        return;
    QObject& shown = label ? static_cast<QObject&>(*label) : field;
    shown.setProperty(keyName, key);
    auto* shortcut =
        field.findChild<QShortcut*>(QString::fromLatin1(shortcutName), Qt::FindDirectChildrenOnly);
    if (!shortcut) {
        shortcut = new QShortcut(&field);
        shortcut->setObjectName(QString::fromLatin1(shortcutName));
        QObject::connect(shortcut, &QShortcut::activated, &field,
                         [&field] { field.setFocus(Qt::ShortcutFocusReason); });
    }
    shortcut->setKey(withAlt(key));
    if (label)
        label->update();
    else if (field.toolTip().isEmpty())
        field.setToolTip(QStringLiteral("%1 (Alt+%2)").arg(name, key));
}

} // namespace

QChar accessKeyOf(const QObject& object) {
    return object.property(keyName).toChar();
}

QString withAccessKey(const QString& caption, QChar key) {
    qsizetype at = -1;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i].toUpper() != key)
            continue;
        const bool begins = i == 0 || !caption[i - 1].isLetterOrNumber();
        if (at < 0 || begins)
            at = i;
        if (begins)
            break;
    }
    return at < 0 ? caption : QString(caption).insert(at, QLatin1Char('&'));
}

bool AccessKeys::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType())
        return false;
    auto* const widget = static_cast<QWidget*>(watched);
    auto* const menu = qobject_cast<QMenu*>(watched);
    if (event->type() == QEvent::Show && menu)
        assign(*menu);
    else if (event->type() == QEvent::KeyPress && menu)
        return choose(*menu, static_cast<QKeyEvent*>(event)->key());
    else if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest)
        look(*widget);
    return false;
}

// What a window shows changes part by part: it is looked at when that is over.
void AccessKeys::look(QWidget& part) {
    QWidget* const window = part.window();
    if (!qobject_cast<QDialog*>(window) && !qobject_cast<QMainWindow*>(window))
        return;
    if (&part == window && !changed_.contains(window) && window->isVisible())
        assign(*window);
    if (changed_.contains(window))
        return;
    changed_.insert(window);
    QTimer::singleShot(0, this, [this, window = QPointer<QWidget>(window), key = window] {
        changed_.remove(key);
        if (window && window->isVisible())
            assign(*window);
    });
}

void AccessKeys::assign(QWidget& window) {
    QSet<QChar> taken;
    if (const auto* const main = qobject_cast<QMainWindow*>(&window); main && main->menuWidget())
        for (const QAction* const action : main->menuWidget()->actions())
            taken.insert(markedKey(action->text()));
    QList<QLabel*> labels;
    for (QLabel* const label : window.findChildren<QLabel*>())
        if (label->window() == &window && label->buddy() && label->isVisible())
            labels.append(label);
    QList<QAbstractButton*> buttons;
    QList<QWidget*> fields;
    for (QLabel* const label : labels)
        taken.insert(markedKey(label->text()));
    for (QTabBar* const bar : window.findChildren<QTabBar*>())
        for (int i = 0; bar->isVisible() && i < bar->count(); ++i)
            taken.insert(markedKey(bar->tabText(i)));
    for (QWidget* const child : window.findChildren<QWidget*>()) {
        if (child->window() != &window || !child->isVisible())
            continue;
        auto* const button = qobject_cast<QAbstractButton*>(child);
        if (!button) {
            if (isField(*child))
                fields.append(child);
            continue;
        }
        const QString name = button->text() + QLatin1Char(' ') + button->accessibleName();
        const QChar marked = markedKey(button->text());
        const QChar kept = accessKeyOf(*button);
        const QChar own = marked.isNull() ? kept : marked;
        if (!own.isNull() && !taken.contains(own) && !name.trimmed().isEmpty()) {
            taken.insert(own);
            if (marked.isNull() && button->shortcut().isEmpty())
                button->setShortcut(withAlt(own));
        } else {
            button->setProperty(keyName, QVariant());
            buttons.append(button);
        }
    }
    // Who has few letters chooses first.
    std::stable_sort(buttons.begin(), buttons.end(), [](const QAbstractButton* a, const QAbstractButton* b) {
        return a->text().size() < b->text().size();
    });
    for (QAbstractButton* const button : std::as_const(buttons)) {
        // The name tells apart what has one caption.
        const QChar key = freeKey(button->text() + QLatin1Char(' ') + button->accessibleName(), taken);
        if (key.isNull())
            continue;
        button->setProperty(keyName, key);
        button->setShortcut(withAlt(key));
        if (!button->text().contains(key, Qt::CaseInsensitive) && button->toolTip().isEmpty())
            button->setToolTip(QStringLiteral("Alt+") + key);
        button->update();
    }
    for (QWidget* const field : std::as_const(fields)) {
        QLabel* const label = labelOf(*field, labels);
        if (!label || markedKey(label->text()).isNull())
            assignField(*field, label, taken);
    }
}

void AccessKeys::assign(QMenu& menu) {
    QSet<QChar> taken;
    for (const QAction* const action : menu.actions())
        if (action->isVisible())
            taken.insert(markedKey(action->text()));
    for (QAction* const action : menu.actions()) {
        if (!action->isVisible() || action->isSeparator() || !markedKey(action->text()).isNull())
            continue;
        action->setProperty(keyName, QVariant());
        const QChar key = freeKey(action->text(), taken);
        if (!key.isNull())
            action->setProperty(keyName, key);
    }
}

// A menu knows only the letters that captions mark.
bool AccessKeys::choose(QMenu& menu, int key) {
    for (QAction* const action : menu.actions()) {
        const QChar own = accessKeyOf(*action);
        if (own.isNull() || key != own.unicode() || !action->isVisible() || !action->isEnabled())
            continue;
        menu.setActiveAction(action);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&menu, &enter);
        return true;
    }
    return false;
}

} // namespace tally
