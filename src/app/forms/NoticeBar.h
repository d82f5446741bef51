// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

class QVBoxLayout;

namespace tally {

struct NoticeAction {
    QString text;
    std::function<void()> run;
};

// The quiet bar under the menu: what must be seen but must not interrupt. Several notices stand one below the
// other, each under its key; a notice put again replaces the one of its key.
class NoticeBar : public QWidget {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    // `canDismiss` adds a button that takes the notice away.
    void put(const QString& key, const QString& text, const std::vector<NoticeAction>& actions = {},
             bool canDismiss = true);
    void remove(const QString& key);
    bool has(const QString& key) const;
    QString text(const QString& key) const; // empty when there is none

private:
    QWidget* row(const QString& key) const;

    QVBoxLayout* rows_;
};

} // namespace tally
