// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <string>

namespace tally::testing {

// Presses keys one after another, each when what it waits for is there, also while a dialog is open. The keys
// go the way of those of a keyboard: to the window that has the keyboard, and from there to menus, shortcuts
// and what has the focus.
class KeyScript : public QObject {
public:
    using Condition = std::function<bool()>;

    // "Ctrl+O", "Alt+F", "Return"; words of one letter are that letter's key. Several are divided by spaces.
    KeyScript& press(const char* keys);
    KeyScript& type(const QString& text);
    // The next key waits until this is true; `what` says it when it never is.
    KeyScript& await(const std::string& what, Condition condition);
    // A dialog of this object name, on top and with the keyboard.
    KeyScript& awaitDialog(const char* name);
    KeyScript& awaitMainWindow();

    // Empty when everything was pressed and all dialogs closed in time; else what was waited for in vain.
    // Then what was open is dismissed, and no more keys are pressed.
    std::string play();

private:
    struct Step {
        std::string what; // that it waits for
        Condition ready;
        std::function<void()> act;
    };

    void look();
    void act();
    void dismiss();

    std::deque<Step> steps_;
    QElapsedTimer since_; // the last step
    bool acting_ = false; // a step was called and has not begun
    std::string failure_;
};

} // namespace tally::testing
