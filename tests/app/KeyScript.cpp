// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyScript.h"

#include <QApplication>
#include <QDialog>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace tally::testing {

namespace {

constexpr int patience = 10'000; // ms for a step
constexpr int pause = 5;         // ms between looks

// A popup takes the keys of the window that it belongs to.
QWindow* keyWindow() {
    return QGuiApplication::focusWindow();
}

// A list of names that has just gone may still be named as the window that has it.
bool hasKeyboard() {
    return keyWindow() && keyWindow()->isVisible() &&
           (QApplication::activeWindow() || QApplication::activePopupWidget());
}

// What the desktop does when a window closes, and the offscreen platform does not: the one below it gets the
// keyboard.
void giveKeyboardBack() {
    if (hasKeyboard())
        return;
    QWidget* below = QApplication::activeModalWidget();
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (!below && qobject_cast<QMainWindow*>(window) && window->isVisible())
            below = window;
    if (below)
        below->activateWindow();
}

std::string told(const QWidget* widget) {
    return widget ? widget->metaObject()->className() + (" " + widget->objectName().toStdString()) : "none";
}

std::string situation() {
    QString says;
    if (const QWidget* const dialog = QApplication::activeModalWidget())
        for (const QLabel* const label : dialog->findChildren<QLabel*>())
            says += label->text() + QLatin1Char(' ');
    return "; active: " + told(QApplication::activeWindow()) +
           ", popup: " + told(QApplication::activePopupWidget()) +
           ", dialog: " + told(QApplication::activeModalWidget()) +
           ", focus: " + told(QApplication::focusWidget()) + ", it says: " + says.toStdString();
}

void stroke(Qt::Key key, Qt::KeyboardModifiers with) {
    const QPointer<QWindow> window = keyWindow();
    if (!window)
        return;
    QTest::keyPress(window.data(), key, with);
    // The key may have closed it.
    if (window && window->isVisible())
        QTest::keyRelease(window.data(), key, with);
}

void stroke(QChar letter) {
    if (QWindow* const window = keyWindow())
        QTest::keyClick(window, letter.toLatin1());
}

} // namespace

KeyScript& KeyScript::press(const char* keys) {
    for (const QString& one : QString::fromLatin1(keys).split(QLatin1Char(' '))) {
        const auto combination = QKeySequence(one)[0];
        steps_.push_back({"the keyboard for " + one.toStdString(), hasKeyboard,
                          [combination] { stroke(combination.key(), combination.keyboardModifiers()); }});
    }
    return *this;
}

KeyScript& KeyScript::type(const QString& text) {
    for (const QChar letter : text)
        steps_.push_back(
            {"the keyboard for " + text.toStdString(), hasKeyboard, [letter] { stroke(letter); }});
    return *this;
}

KeyScript& KeyScript::await(const std::string& what, Condition condition) {
    steps_.push_back({what, std::move(condition), [] {}});
    return *this;
}

KeyScript& KeyScript::awaitDialog(const char* name) {
    return await(std::string("dialog ") + name, [wanted = QString::fromLatin1(name)] {
        const QWidget* const dialog = QApplication::activeModalWidget();
        return dialog && dialog->objectName() == wanted && dialog->isActiveWindow() &&
               !QApplication::activePopupWidget();
    });
}

KeyScript& KeyScript::awaitMainWindow() {
    return await("the main window", [] {
        return !QApplication::activeModalWidget() && !QApplication::activePopupWidget() &&
               qobject_cast<const QMainWindow*>(QApplication::activeWindow());
    });
}

std::string KeyScript::play() {
    since_.start();
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, &KeyScript::look);
    timer.start(pause);
    while (!steps_.empty() || acting_ || QApplication::activeModalWidget())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return failure_;
}

void KeyScript::look() {
    if (acting_)
        return;
    if (!failure_.empty())
        return dismiss();
    giveKeyboardBack();
    if (!steps_.empty() && steps_.front().ready())
        return act();
    if (since_.hasExpired(patience))
        failure_ = (steps_.empty() ? "the last dialog to close" : steps_.front().what) + situation();
}

void KeyScript::dismiss() {
    steps_.clear();
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
    if (auto* const open = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        open->reject();
}

// Not from within the timer: it would stand still while a dialog that the key opens is there.
void KeyScript::act() {
    acting_ = true;
    const auto now = [this] {
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        acting_ = false;
        since_.start();
        step.act();
    };
    QMetaObject::invokeMethod(this, now, Qt::QueuedConnection);
}

} // namespace tally::testing
