// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLabel;
class QStatusBar;

namespace tally {

// The status bar: a remark on what is shown, and the time and the value under the pointer.
class StatusPanels {
public:
    explicit StatusPanels(QStatusBar& bar);

    void remark(const QString& text);
    // Both empty off the data.
    void pointer(const QString& time, const QString& value);

private:
    QLabel* remark_;
    QLabel* time_;
    QLabel* value_;
};

} // namespace tally
