// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLabel;
class QStatusBar;

namespace tally {

// The status bar: a remark on what is shown, and the time and the value under the pointer. A word about a
// command stands in the remark's place until the next command.
class StatusPanels {
public:
    explicit StatusPanels(QStatusBar& bar);

    void remark(const QString& text);
    void say(const QString& word);
    // A command begins: what was said of the last one goes.
    void forget() { say({}); }
    // Both empty off the data.
    void pointer(const QString& time, const QString& value);

private:
    static void put(QLabel& panel, const QString& text);
    void showRemark();

    QString text_;
    QString word_;
    QLabel* remark_;
    QLabel* time_;
    QLabel* value_;
};

} // namespace tally
